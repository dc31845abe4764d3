#include "drag_session.h"

#include <orv_drag_icon.h>
#include <orv_settings.h>
#include <orv_tool_bar_area.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace OrvWidgets;
using KeyMap = QMap<int, QString>;

namespace {

OrvUtils::OperatorSettings* settings() { return OrvUtils::OperatorSettings::getInstance(); }
QVariant stored(const char* key) { return settings()->value(QStringLiteral("ToolBar"), QLatin1String(key)); }

// A shell stand-in: a menu column with the original entries a, b, c and the bar.
struct Shell
{
    Shell()
    {
        window.resize(700, 200);
        auto* lay = new QHBoxLayout(&window);
        menu = new QWidget(&window);
        new QVBoxLayout(menu);
        bar = new OrvToolBarArea(&window);
        lay->addWidget(menu);
        lay->addWidget(bar, 1);
        for (const char* id : {"a", "b", "c"})
            add(QLatin1String(id));
    }
    OrvDragIcon* add(const QString& id)
    {
        auto* icon = new OrvDragIcon(menu);
        icon->setIdentifier(id);
        icon->setText(QStringLiteral("Entry ") + id.toUpper());
        icon->setContext(QStringLiteral("Group"));
        icon->setIcon(OrvTest::filledIcon(Qt::blue));
        menu->layout()->addWidget(icon);
        originals.insert(id, icon);
        return icon;
    }
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window);
    }
    OrvDragIcon* copy(const QString& id) const
    {
        for (OrvDragIcon* icon : bar->findChildren<OrvDragIcon*>(QString(), Qt::FindDirectChildrenOnly))
            if (icon->identifier() == id && !icon->isHidden())
                return icon;
        return nullptr;
    }
    QPoint centreOf(const QString& id) const
    {
        QCoreApplication::processEvents(); // let the layout place new copies
        return copy(id)->geometry().center();
    }
    QPoint emptySpace() const { return QPoint(bar->width() - 5, bar->height() / 2); }
    void setEntries(const QStringList& ids)
    {
        QList<OrvDragIcon*> list;
        for (const QString& id : ids)
            list << originals.value(id);
        bar->setMenuEntries(list);
    }
    QMenu* openContextMenu(const QString& id)
    {
        Q_EMIT copy(id)->customContextMenuRequested(QPoint(2, 2));
        return bar->findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    }

    QWidget window;
    QWidget* menu = nullptr;
    OrvToolBarArea* bar = nullptr;
    QMap<QString, OrvDragIcon*> originals;
};

// Sends drag enter and drop at `pos`; true when both were accepted as a move.
bool dragAndDrop(OrvToolBarArea* bar, const QPoint& pos)
{
    QMimeData mime;
    mime.setText(QStringLiteral("anything"));
    QDragEnterEvent enter(pos, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &enter);
    QDropEvent drop(pos, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &drop);
    return enter.isAccepted() && enter.dropAction() == Qt::MoveAction && drop.isAccepted();
}

// Drags the original entry `id` (or its copy in the bar) to `pos`.
bool dragEntry(Shell& shell, const QString& id, bool fromBar, const QPoint& pos)
{
    bool accepted = false;
    OrvDragIcon* source = fromBar ? shell.copy(id) : shell.originals.value(id);
    return OrvTest::duringDrag(source, [&] { accepted = dragAndDrop(shell.bar, pos); }) && accepted;
}

QMenu* subMenu(QMenu* menu)
{
    for (QAction* action : menu->actions())
        if (action->menu())
            return action->menu();
    return nullptr;
}

} // namespace

class TestOrvToolBarArea : public QObject
{
    Q_OBJECT
    QTemporaryDir m_dir;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        settings()->setFileName(m_dir.filePath(QStringLiteral("operator.ini")));
    }
    void init()
    {
        settings()->remove(QStringLiteral("ToolBar"), QStringLiteral("entries"));
        settings()->remove(QStringLiteral("ToolBar"), QStringLiteral("functionKeys"));
    }

    void dragRules_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("new original") << "c" << true << QStringList{"a", "c", "b"};
        QTest::newRow("original with copy") << "a" << false << QStringList{"a", "b"};
        QTest::newRow("copy onto itself") << "copy a" << false << QStringList{"a", "b"};
        QTest::newRow("foreign widget") << "foreign" << false << QStringList{"a", "b"};
        QTest::newRow("no drag source") << "none" << false << QStringList{"a", "b"};
    }
    void dragRules()
    {
        QFETCH(QString, source);
        QFETCH(bool, accepted);
        QFETCH(QStringList, entries);
        Shell shell;
        QPushButton foreign(&shell.window);
        QVERIFY(shell.show());
        shell.setEntries({"a", "b"});
        const QVariant before = stored("entries");
        const QPoint onA = shell.centreOf("a");
        bool result = false;
        bool ran = true;
        if (source == "foreign")
            ran = OrvTest::duringForeignDrag(&foreign, [&] { result = dragAndDrop(shell.bar, onA); });
        else if (source == "none")
            result = dragAndDrop(shell.bar, onA);
        else
            result = dragEntry(shell, source.right(1), source.startsWith("copy"), onA);
        QVERIFY(ran);
        QCOMPARE(result, accepted);
        QCOMPARE(shell.bar->menuEntries(), entries);
        if (!accepted)
            QCOMPARE(stored("entries"), before);
    }

    void dropOrder()
    {
        Shell shell;
        QVERIFY(shell.show());
        QVERIFY(dragEntry(shell, "a", false, shell.emptySpace()));
        QVERIFY(dragEntry(shell, "b", false, shell.centreOf("a")));
        QVERIFY(dragEntry(shell, "c", false, shell.centreOf("a")));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "c", "b"}));
        // A moved copy goes right after the copy it is dropped on.
        QVERIFY(dragEntry(shell, "b", true, shell.centreOf("a")));
        QVERIFY(dragEntry(shell, "a", true, shell.centreOf("c")));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"b", "c", "a"}));
        // Onto empty space: accepted, order kept.
        QVERIFY(dragEntry(shell, "b", true, shell.emptySpace()));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"b", "c", "a"}));
        QCOMPARE(stored("entries").toStringList(), QStringList({"b", "c", "a"}));
        QVERIFY(shell.centreOf("b").x() < shell.centreOf("c").x());
        QVERIFY(shell.centreOf("c").x() < shell.centreOf("a").x());
    }

    void copyMirrorsOriginal()
    {
        Shell shell;
        OrvDragIcon* original = shell.originals.value("a");
        original->setToolTip(QStringLiteral("Tip"));
        shell.add(QStringLiteral("blank"))->setText(QString());
        QTest::ignoreMessage(QtWarningMsg, "OrvToolBarArea::setMenuEntries: skipping null-entry");
        shell.bar->setMenuEntries({original, shell.originals.value("blank"), nullptr, original});
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "blank"}));

        OrvDragIcon* copy = shell.copy("a");
        QVERIFY(copy && copy != original);
        QCOMPARE(copy->text(), original->text());
        QCOMPARE(copy->context(), original->context());
        QCOMPARE(copy->toolTip(), QStringLiteral("Tip"));
        QCOMPARE(copy->icon().cacheKey(), original->icon().cacheKey());
        QCOMPARE(copy->buttonStyle(), eIconOnly);
        QCOMPARE(copy->maximumSize(), QSize(40, 40));
        QVERIFY(!shell.copy("blank")); // hidden: no text

        QSignalSpy clicked(original, &OrvDragIcon::clicked);
        copy->toolButton()->click();
        QCOMPARE(clicked.size(), 1);
        original->setEnabled(false);
        QVERIFY(!copy->isEnabled());
        original->setEnabled(true);
        QVERIFY(copy->isEnabled());
    }

    void functionKeyRebinding()
    {
        Shell shell;
        shell.setEntries({"a", "b"});
        OrvDragIcon* a = shell.copy("a");
        OrvDragIcon* b = shell.copy("b");
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "a"));
        QCOMPARE(a->modification(), QStringLiteral("F5"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F7, "a"));
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F7, "a"}}));
        QCOMPARE(a->modification(), QStringLiteral("F7"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F7, "b"));
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F7, "b"}}));
        QVERIFY(a->modification().isEmpty());
        QCOMPARE(b->modification(), QStringLiteral("F7"));
        QCOMPARE(stored("functionKeys").toString(), QStringLiteral("F7=b"));
        QVERIFY(shell.bar->removeFunctionKey("b"));
        QVERIFY(b->modification().isEmpty());
        QVERIFY(!shell.bar->removeFunctionKey("b"));
        QVERIFY(shell.bar->functionKeys().isEmpty());
    }

    void functionKeyRefused_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("identifier");
        QTest::newRow("F4") << int(Qt::Key_F4) << "a";
        QTest::newRow("F13") << int(Qt::Key_F13) << "a";
        QTest::newRow("letter") << int(Qt::Key_A) << "a";
        QTest::newRow("unknown entry") << int(Qt::Key_F6) << "zzz";
        QTest::newRow("empty identifier") << int(Qt::Key_F6) << "";
    }
    void functionKeyRefused()
    {
        QFETCH(int, key);
        QFETCH(QString, identifier);
        Shell shell;
        shell.setEntries({"a"});
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F6, "a"));
        const QVariant before = stored("functionKeys");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^OrvToolBarArea::setFunctionKey: "));
        QVERIFY(!shell.bar->setFunctionKey(key, identifier));
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F6, "a"}}));
        QCOMPARE(shell.copy("a")->modification(), QStringLiteral("F6"));
        QCOMPARE(stored("functionKeys"), before);
    }

    void contextMenuKeys_data()
    {
        QTest::addColumn<int>("key");
        for (int key = Qt::Key_F5; key <= Qt::Key_F12; ++key)
            QTest::addRow("F%d", key - Qt::Key_F1 + 1) << key;
    }
    void contextMenuKeys()
    {
        QFETCH(int, key);
        const QString name = QStringLiteral("F%1").arg(key - Qt::Key_F1 + 1);
        const int otherKey = key == Qt::Key_F12 ? Qt::Key_F5 : key + 1;
        Shell shell;
        shell.originals.value("b")->setText(QStringLiteral("Map & Grid"));
        shell.setEntries({"a", "b"});
        QVERIFY(shell.show());
        QVERIFY(shell.bar->setFunctionKey(otherKey, "b"));

        QMenu* keys = subMenu(shell.openContextMenu("a"));
        QVERIFY(keys);
        QCOMPARE(keys->title(), QStringLiteral("Function Key"));
        QStringList texts;
        for (QAction* action : keys->actions())
            texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
        QStringList expected;
        for (int k = Qt::Key_F5; k <= Qt::Key_F12; ++k)
            expected << QStringLiteral("F%1").arg(k - Qt::Key_F1 + 1) + (k == otherKey ? " - Map && Grid" : "");
        expected << "|" << "Remove Function Key";
        QCOMPARE(texts, expected);

        keys->actions().at(key - Qt::Key_F5)->trigger();
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{key, "a"}, {otherKey, "b"}}));
        QCOMPARE(shell.copy("a")->modification(), name);
        keys->actions().last()->trigger();
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{otherKey, "b"}}));
    }

    // Removing entries from the context menu or by call; an empty bar shows a placeholder.
    void removeEntries()
    {
        Shell shell;
        const auto placeholder = [&] { return shell.bar->findChild<QLabel*>(QStringLiteral("dummyLabel")); };
        QVERIFY(placeholder() && !placeholder()->text().isEmpty());
        shell.setEntries({"a"});
        QVERIFY(!placeholder());
        shell.bar->addMenuEntry(shell.originals.value("b"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F9, "a"));
        QVERIFY(shell.show());
        QMenu* menu = shell.openContextMenu("a");
        QVERIFY(menu);
        QCOMPARE(menu->actions().first()->text(), QStringLiteral("Remove"));
        menu->actions().first()->trigger();
        QCOMPARE(shell.bar->menuEntries(), QStringList({"b"}));
        QVERIFY(shell.bar->functionKeys().isEmpty());
        QCOMPARE(stored("entries").toString(), QStringLiteral("b"));
        QVERIFY(!shell.bar->removeMenuAction(shell.originals.value("a")));
        QVERIFY(shell.bar->removeMenuAction(shell.originals.value("b")));
        QVERIFY(placeholder());
    }

    void pressingBoundKeyClicksOriginal()
    {
        Shell shell;
        shell.setEntries({"a", "b"});
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F6, "b"));
        QVERIFY(shell.show());
        shell.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shell.window));
        QSignalSpy clickedA(shell.originals.value("a"), &OrvDragIcon::clicked);
        QSignalSpy clickedB(shell.originals.value("b"), &OrvDragIcon::clicked);
        QSignalSpy copyClicked(shell.copy("b"), &OrvDragIcon::clicked);
        QTest::keyClick(&shell.window, Qt::Key_F6);
        QCOMPARE(copyClicked.size(), 1);
        QCOMPARE(clickedB.size(), 1);
        QTest::keyClick(&shell.window, Qt::Key_F8); // free key
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F6, "a"));
        QTest::keyClick(&shell.window, Qt::Key_F6);
        QCOMPARE(clickedA.size(), 1);
        QCOMPARE(clickedB.size(), 1);
    }

    void destroyedOriginalRemovesCopy()
    {
        Shell shell;
        shell.setEntries({"a", "b", "c"});
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "b"));
        const QVariant entries = stored("entries");
        const QVariant keys = stored("functionKeys");
        QPointer<OrvDragIcon> copy = shell.copy("b");
        delete shell.originals.take("b");
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "c"}));
        QVERIFY(shell.bar->functionKeys().isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!copy);
        // Shutdown destroys originals too: the stored bar must survive that.
        QCOMPARE(stored("entries"), entries);
        QCOMPARE(stored("functionKeys"), keys);
        QVERIFY(shell.bar->removeMenuAction(shell.originals.value("c"))); // pairs still line up
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a"}));
    }

    void persistenceRoundTrip()
    {
        {
            Shell shell;
            shell.setEntries({"c", "a", "b"});
            QVERIFY(shell.bar->setFunctionKey(Qt::Key_F12, "a"));
            QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "c"));
        }
        settings()->setFileName(settings()->fileName()); // read back from disk

        Shell shell;
        QCOMPARE(shell.bar->savedEntries(), QStringList({"c", "a", "b"}));
        QVERIFY(shell.bar->restoreSettings(shell.originals.values()));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"c", "a", "b"}));
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F5, "c"}, {Qt::Key_F12, "a"}}));
        QCOMPARE(shell.copy("a")->modification(), QStringLiteral("F12"));

        // With an entry missing the rest is restored and nothing is written.
        Shell partial;
        delete partial.originals.take("a");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("restoreSettings: skipping stored entry a "));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setFunctionKey: no entry a "));
        QVERIFY(!partial.bar->restoreSettings(partial.originals.values()));
        QCOMPARE(partial.bar->menuEntries(), QStringList({"c", "b"}));
        QCOMPARE(partial.bar->functionKeys(), (KeyMap{{Qt::Key_F5, "c"}}));
        QCOMPARE(stored("entries").toStringList(), QStringList({"c", "a", "b"}));
        QCOMPARE(stored("functionKeys").toStringList(), QStringList({"F5=c", "F12=a"}));
    }

    void corruptStoredData_data()
    {
        QTest::addColumn<QVariant>("entries");
        QTest::addColumn<QVariant>("keys");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<QStringList>("restored");
        QTest::addColumn<KeyMap>("restoredKeys");
        const QStringList abc{"a", "b", "c"};
        QTest::newRow("unknown entry") << QVariant(QStringList{"a", "gone", "b"}) << QVariant()
                                       << QStringList{"stored entry gone "} << QStringList{"a", "b"} << KeyMap();
        QTest::newRow("one entry as text") << QVariant("b") << QVariant("F8=b") << QStringList() << QStringList{"b"}
                                           << KeyMap{{Qt::Key_F8, "b"}};
        QTest::newRow("repeated entry") << QVariant(QStringList{"a", "a", ""}) << QVariant()
                                        << QStringList{"repeated stored entry a", "repeated stored entry $"}
                                        << QStringList{"a"} << KeyMap();
        QTest::newRow("entries of wrong type") << QVariant(QRect(1, 2, 3, 4)) << QVariant()
                                               << QStringList{"stored entries of type QRect"} << QStringList() << KeyMap();
        QTest::newRow("mixed list") << QVariant(QVariantList{"a", 7, "c"}) << QVariant()
                                    << QStringList{"stored entries item of type int"} << QStringList{"a", "c"} << KeyMap();
        QTest::newRow("keys outside F5-F12") << QVariant(abc) << QVariant(QStringList{"F4=a", "F13=b", "Ctrl+F6=c", "F6=a"})
                                             << QStringList{"key F4=a", "key F13=b", "key Ctrl\\+F6=c"} << abc
                                             << KeyMap{{Qt::Key_F6, "a"}};
        QTest::newRow("malformed keys") << QVariant(abc) << QVariant(QStringList{"a", "=a", "F5=", "F5=a", "F5=b", "F7=a"})
                                        << QStringList{"key a$", "key =a", "key F5=$", "key F5=b", "key F7=a"} << abc
                                        << KeyMap{{Qt::Key_F5, "a"}};
        QTest::newRow("key of missing entry") << QVariant(QStringList{"a"}) << QVariant(QStringList{"F9=c"})
                                              << QStringList{"no entry c "} << QStringList{"a"} << KeyMap();
        QTest::newRow("keys of wrong type") << QVariant(abc) << QVariant(42)
                                            << QStringList{"stored functionKeys of type int"} << abc << KeyMap();
    }
    void corruptStoredData()
    {
        QFETCH(QVariant, entries);
        QFETCH(QVariant, keys);
        QFETCH(QStringList, warnings);
        QFETCH(QStringList, restored);
        QFETCH(KeyMap, restoredKeys);
        settings()->setValue(QStringLiteral("ToolBar"), QStringLiteral("entries"), entries);
        settings()->setValue(QStringLiteral("ToolBar"), QStringLiteral("functionKeys"), keys);
        Shell shell;
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        QCOMPARE(shell.bar->restoreSettings(shell.originals.values()), warnings.isEmpty());
        QCOMPARE(shell.bar->menuEntries(), restored);
        QCOMPARE(shell.bar->functionKeys(), restoredKeys);
        QCOMPARE(stored("entries"), entries); // nothing written back
    }
};

QTEST_MAIN(TestOrvToolBarArea)
#include "tst_orv_tool_bar_area.moc"
