// Drag icons and the tool bar area built from their copies. Drag events name
// their source only while a real drag runs, hence these tests need X.
#include <orv_drag_icon.h>
#include <orv_settings.h>
#include <orv_tool_bar_area.h>

#include <QAction>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using namespace OrvWidgets;
using KeyMap = QMap<int, QString>;

namespace {

QIcon filledIcon(const QColor& color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(color);
    return QIcon(pixmap);
}

int redPixels(const QImage& image, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += (c.red() > 200 && c.green() < 80 && c.blue() < 80) ? 1 : 0;
        }
    return count;
}

// Starts a drag with `start`; if one runs, `during` runs inside it and Escape
// sent to `source` cancels it. Returns whether `during` ran.
bool inDrag(QWidget* source, const std::function<void()>& start, const std::function<void()>& during)
{
    bool ran = false;
    QObject context; // cancels the timer when no drag started
    QTimer::singleShot(0, &context, [&] {
        during();
        ran = true;
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(source, &escape);
    });
    start();
    return ran;
}

// Presses the left button at (5, 5) on the icon's button, moves it by `delta`
// (running `during` if that starts a drag) and releases it.
bool dragIcon(OrvDragIcon* icon, const std::function<void()>& during, const QPoint& delta = QPoint(15, 0))
{
    const QPoint from(5, 5);
    const auto mouse = [](QWidget* w, QEvent::Type type, const QPoint& pos, Qt::MouseButton b, Qt::MouseButtons bs) {
        QMouseEvent event(type, QPointF(pos), QPointF(w->mapToGlobal(pos)), b, bs, Qt::NoModifier);
        QCoreApplication::sendEvent(w, &event);
    };
    QWidget* button = icon->toolButton();
    const bool ran = inDrag(button, [&] {
        mouse(button, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        mouse(button, QEvent::MouseMove, from + delta, Qt::NoButton, Qt::LeftButton);
    }, during);
    if (icon->toolButton())
        mouse(icon->toolButton(), QEvent::MouseButtonRelease, from + delta, Qt::LeftButton, Qt::NoButton);
    return ran;
}

OrvUtils::OperatorSettings* settings() { return OrvUtils::OperatorSettings::getInstance(); }
QVariant stored(const char* key) { return settings()->value(QStringLiteral("ToolBar"), QLatin1String(key)); }

// A shell stand-in: a menu column with the original entries a, b, c and the bar.
struct Shell
{
    Shell()
    {
        window.resize(700, 200);
        auto* lay = new QHBoxLayout(&window);
        lay->addWidget(menu);
        lay->addWidget(bar, 1);
        new QVBoxLayout(menu);
        for (const char* id : {"a", "b", "c"})
            add(QLatin1String(id));
        window.show();
        exposed = QTest::qWaitForWindowExposed(&window);
    }
    OrvDragIcon* add(const QString& id)
    {
        auto* icon = new OrvDragIcon(menu);
        icon->setIdentifier(id);
        icon->setText(QStringLiteral("Entry ") + id.toUpper());
        icon->setContext(QStringLiteral("Group"));
        icon->setIcon(filledIcon(Qt::blue));
        menu->layout()->addWidget(icon);
        originals.insert(id, icon);
        return icon;
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
    // Drags the original entry `id` (or its copy in the bar) onto the bar at `pos`.
    bool dragEntry(const QString& id, bool fromBar, const QPoint& pos)
    {
        bool accepted = false;
        OrvDragIcon* source = fromBar ? copy(id) : originals.value(id);
        return dragIcon(source, [&] { accepted = dropOn(pos); }) && accepted;
    }
    // Sends drag enter and, as a real drag does only once that is accepted, the
    // drop at `pos` (Qt routes it to the last accepting widget, which may be gone).
    // True when both were accepted as a move.
    bool dropOn(const QPoint& pos)
    {
        QMimeData mime;
        QDragEnterEvent enter(pos, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &enter);
        if (!enter.isAccepted() || enter.dropAction() != Qt::MoveAction)
            return false;
        QDropEvent drop(pos, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &drop);
        return drop.isAccepted();
    }

    QWidget window;
    QWidget* menu = new QWidget(&window);
    OrvToolBarArea* bar = new OrvToolBarArea(&window);
    QMap<QString, OrvDragIcon*> originals;
    bool exposed = false;
};

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

    void iconStyles_data() // row names are the designer's names of the styles
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("buttonStyle");
        QTest::newRow("eAll") << int(eAll) << int(Qt::ToolButtonTextUnderIcon);
        QTest::newRow("eTextOnly") << int(eTextOnly) << int(Qt::ToolButtonTextOnly);
        QTest::newRow("eIconOnly") << int(eIconOnly) << int(Qt::ToolButtonIconOnly);
        QTest::newRow("eTextNextToIcon") << int(eTextNextToIcon) << int(Qt::ToolButtonTextUnderIcon);
    }
    void iconStyles()
    {
        QFETCH(int, style);
        QFETCH(int, buttonStyle);
        OrvDragIcon icon;
        // Start from the opposite look so that each style has to undo it.
        icon.setButtonStyle(style == eIconOnly ? eTextOnly : eIconOnly);
        QVERIFY(icon.setProperty("eStyle", QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(icon.buttonStyle(), ButtonStyle(style));
        QCOMPARE(int(icon.toolButton()->toolButtonStyle()), buttonStyle);
        QCOMPARE(icon.minimumSize(), QSize(40, 40));
        QCOMPARE(icon.maximumSize(), style == eIconOnly ? QSize(40, 40) : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    // Rebuilding the inner button keeps its state and the relayed signals.
    void iconRebuildKeepsButtonState()
    {
        QWidget parent;
        auto* icon = new OrvDragIcon(&parent);
        QButtonGroup group;
        group.setExclusive(false);
        QMenu menu;
        icon->setCheckable(true);
        icon->setChecked(true);
        icon->setMenu(&menu);
        icon->addToButtonGroup(&group, 7);
        icon->addMimeData(QStringLiteral("application/x-orv"), "payload");
        icon->setButtonVisible(false);
        QSignalSpy clicked(icon, &OrvDragIcon::clicked);
        QSignalSpy toggled(icon, &OrvDragIcon::toggled);
        QSignalSpy drop(icon, &OrvDragIcon::newDropEvent);
        QSignalSpy dropSuc(icon, &OrvDragIcon::dropSuc);

        icon->setForceFixedSize(true); // rebuilds the inner button
        QCOMPARE(icon->maximumSize(), QSize(40, 40));
        QVERIFY(icon->isChecked());
        QCOMPARE(icon->menu(), &menu);
        QCOMPARE(group.buttons(), QList<QAbstractButton*>{icon->toolButton()});
        QCOMPARE(group.id(icon->toolButton()), 7);
        QVERIFY(!icon->buttonVisible());
        QCOMPARE(icon->toolButton()->registeredMimeData().value(QStringLiteral("application/x-orv")), QByteArray("payload"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(icon->findChildren<OrvToolButton*>().size(), 1);
        icon->toolButton()->click();
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(toggled.size(), 1);
        Q_EMIT icon->toolButton()->dropSuc();
        QCOMPARE(dropSuc.size(), 1);
        QMimeData mime;
        QDropEvent event(QPointF(1, 1), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        Q_EMIT icon->toolButton()->newDropEvent(&event);
        QCOMPARE(drop.size(), 1);
    }

    void iconToolTipNamesContext()
    {
        OrvDragIcon icon;
        const auto tip = [&](const QString& text) {
            icon.setText(text);
            return icon.toolButton()->toolTip();
        };
        QCOMPARE(tip("Map"), QStringLiteral("Map"));
        icon.setContext(QStringLiteral("Planning"));
        QCOMPARE(tip("Old"), QStringLiteral("Planning - Old"));
        QCOMPARE(tip("Map"), QStringLiteral("Planning - Map"));
        QCOMPARE(icon.toolButton()->text(), QStringLiteral("Map"));
        // An emptied text generates nothing: the button keeps its last text and tip.
        QCOMPARE(tip(""), QStringLiteral("Planning - Map"));
        QCOMPARE(icon.toolButton()->text(), QStringLiteral("Map"));
    }

    void iconModificationMark()
    {
        for (bool withIcon : {true, false}) {
            OrvDragIcon icon;
            const QIcon blue = withIcon ? filledIcon(Qt::blue) : QIcon();
            icon.setIcon(blue);
            icon.setModification(QStringLiteral("F12"));
            QCOMPARE(icon.icon().cacheKey(), blue.cacheKey());
            // High-density screens get a copy painted at their resolution.
            for (int ratio : {1, 2}) {
                const QImage marked = icon.toolButton()->icon().pixmap(QSize(32, 32), ratio).toImage();
                QCOMPARE(marked.size(), QSize(32, 32) * ratio);
                QVERIFY(redPixels(marked, QRect(0, 0, 28 * ratio, 28 * ratio)) > 10 * ratio * ratio);
                QCOMPARE(redPixels(marked, QRect(29 * ratio, 0, 3 * ratio, 32 * ratio)), 0);
                if (withIcon)
                    QCOMPARE(marked.pixelColor(marked.width() - 1, marked.height() - 1), QColor(Qt::blue));
            }
            icon.removeModification();
            QCOMPARE(icon.toolButton()->icon().cacheKey(), blue.cacheKey());
        }
    }

    void iconDesignerPropertiesAndAction()
    {
        OrvDragIcon icon;
        QVERIFY(icon.setProperty("isDraggable", false));
        QVERIFY(!icon.toolButton()->isDraggable());

        QAction action(filledIcon(Qt::green), QStringLiteral("Act"));
        action.setObjectName(QStringLiteral("actEntry"));
        QVERIFY(icon.setAction(&action));
        QCOMPARE(icon.objectName(), QStringLiteral("actEntry"));
        QCOMPARE(icon.icon().cacheKey(), action.icon().cacheKey());
        QTest::ignoreMessage(QtWarningMsg, "OrvDragIcon::setAction: cannot set null-action!");
        QVERIFY(!icon.setAction(nullptr));
    }

    // Moves of more than four pixels (Manhattan length) drag, shorter ones click. The
    // drag carries the registered data, the first object name from the button up
    // to the drag icon and the action's icon if it should show that. Other buttons
    // take it as a move; its own button only when allowed to.
    void iconDragData()
    {
        QWidget window;
        window.setObjectName(QStringLiteral("window")); // beyond the drag icon: never used
        auto* icon = new OrvDragIcon(&window);
        auto* other = new OrvDragIcon(&window);
        icon->setAcceptDrops(true);
        other->setAcceptDrops(true);
        icon->setObjectName(QStringLiteral("entry"));
        icon->setIcon(filledIcon(Qt::blue));
        icon->addMimeData(QStringLiteral("application/x-a"), "A");
        icon->addMimeData(QStringLiteral("application/x-c"), "C");
        QVERIFY(icon->removeMimeData(QStringLiteral("application/x-c")));
        QVERIFY(!icon->removeMimeData(QStringLiteral("application/x-c")));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy clicked(icon, &OrvDragIcon::clicked);
        QSignalSpy dropSuc(icon, &OrvDragIcon::dropSuc);
        for (const QPoint& delta : {QPoint(4, 0), QPoint(2, -2)})
            QVERIFY(!dragIcon(icon, [] {}, delta));
        QCOMPARE(clicked.size(), 2);
        const auto check = [&](const QString& text, const QColor& pixmapColor, const QPoint& delta = QPoint(15, 0)) {
            QVERIFY(dragIcon(icon, [&] {
                auto* drag = icon->toolButton()->findChild<QDrag*>();
                QVERIFY(drag);
                const QMimeData* mime = drag->mimeData();
                QCOMPARE(mime->text(), text);
                QCOMPARE(mime->data(QStringLiteral("application/x-a")), QByteArray("A"));
                QVERIFY(!mime->hasFormat(QStringLiteral("application/x-c")));
                QCOMPARE(mime->hasFormat(QStringLiteral("DropHandlerPtr")), icon->dropHandlerKey() != 0);
                if (icon->dropHandlerKey() != 0)
                    QCOMPARE(mime->data(QStringLiteral("DropHandlerPtr")), QByteArray::number(icon->dropHandlerKey()));
                QCOMPARE(drag->pixmap().deviceIndependentSize().toSize(), QSize(16, 16));
                QCOMPARE(drag->pixmap().toImage().pixelColor(8, 8), pixmapColor);
            }, delta));
        };
        check(QStringLiteral("entry"), Qt::blue, QPoint(-3, 2));
        icon->toolButton()->setObjectName(QStringLiteral("inner"));
        check(QStringLiteral("inner"), Qt::blue);
        QAction action(filledIcon(Qt::green), QStringLiteral("Act"));
        icon->setAction(&action);
        icon->setIcon(filledIcon(Qt::blue));
        icon->setObjectName(QString());
        icon->toolButton()->setObjectName(QString());
        icon->setDropHandlerKey(18446744073709551615ULL);
        check(QString(), Qt::green);
        icon->setShowDragIcon(false);
        check(QString(), Qt::blue);
        QMimeData mime;
        const auto enter = [&](QWidget* receiver) {
            QDragEnterEvent event(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
            event.setDropAction(Qt::CopyAction);
            QCoreApplication::sendEvent(receiver, &event);
            return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
        };
        QCOMPARE(enter(other->toolButton()), Qt::IgnoreAction); // no drag running: no source
        QVERIFY(dragIcon(icon, [&] {
            QCOMPARE(enter(icon->toolButton()), Qt::IgnoreAction);
            QCOMPARE(enter(other->toolButton()), Qt::MoveAction);
            icon->setSameWidgetDrop(true);
            QCOMPARE(enter(icon->toolButton()), Qt::MoveAction);
        }));
        QCOMPARE(clicked.size(), 2);
        QCOMPARE(dropSuc.size(), 0); // cancelled: no success
        icon->setDraggable(false);
        QVERIFY(!dragIcon(icon, [] {}));
    }

    // Drops the bar refuses change neither the entries nor what is stored.
    void barDragRefused_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("original with copy") << "original";
        QTest::newRow("copy onto itself") << "copy";
        QTest::newRow("foreign widget") << "foreign";
        QTest::newRow("no drag source") << "none";
    }
    void barDragRefused()
    {
        QFETCH(QString, source);
        Shell shell;
        QVERIFY(shell.exposed);
        shell.setEntries({"a", "b"});
        const QVariant before = stored("entries");
        const QPoint onA = shell.centreOf("a");
        bool accepted = true;
        if (source == "foreign") {
            QVERIFY(inDrag(shell.menu, [&] {
                QDrag drag(shell.menu);
                drag.setMimeData(new QMimeData);
                drag.exec(Qt::CopyAction | Qt::MoveAction);
            }, [&] { accepted = shell.dropOn(onA); }));
        } else if (source == "none") {
            accepted = shell.dropOn(onA);
        } else {
            OrvDragIcon* icon = source == "copy" ? shell.copy("a") : shell.originals.value("a");
            QVERIFY(dragIcon(icon, [&] { accepted = shell.dropOn(onA); }));
        }
        QVERIFY(!accepted);
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "b"}));
        QCOMPARE(stored("entries"), before);
    }

    void barDropOrder()
    {
        Shell shell;
        QVERIFY(shell.exposed);
        const QPoint emptySpace(shell.bar->width() - 5, shell.bar->height() / 2);
        QVERIFY(shell.dragEntry("a", false, emptySpace));
        QVERIFY(shell.dragEntry("b", false, shell.centreOf("a")));
        QVERIFY(shell.dragEntry("c", false, shell.centreOf("a")));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "c", "b"}));
        // A moved copy goes right after the copy it is dropped on.
        QVERIFY(shell.dragEntry("b", true, shell.centreOf("a")));
        QVERIFY(shell.dragEntry("a", true, shell.centreOf("c")));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"b", "c", "a"}));
        // Onto empty space: accepted, order kept.
        QVERIFY(shell.dragEntry("b", true, emptySpace));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"b", "c", "a"}));
        QCOMPARE(stored("entries").toStringList(), QStringList({"b", "c", "a"}));
        QVERIFY(shell.centreOf("b").x() < shell.centreOf("c").x());
        QVERIFY(shell.centreOf("c").x() < shell.centreOf("a").x());
        // Put onto itself, a copy is out of the bar when the target is looked for: it goes last.
        shell.bar->addMenuEntry(shell.copy("b"), shell.copy("b"));
        QCOMPARE(shell.bar->menuEntries(), QStringList({"c", "a", "b"}));
    }

    void barCopyMirrorsOriginal()
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
        QCOMPARE(copy->toolTip(), QStringLiteral("Tip"));
        QCOMPARE(copy->icon().cacheKey(), original->icon().cacheKey());
        QCOMPARE(copy->maximumSize(), QSize(40, 40));
        QVERIFY(!shell.copy("blank")); // hidden: no text

        QSignalSpy clicked(original, &OrvDragIcon::clicked);
        copy->toolButton()->click();
        QCOMPARE(clicked.size(), 1);
        shell.menu->setEnabled(false); // the original follows its parent, the copy the original
        QVERIFY(!copy->isEnabled());
        original->setEnabled(true);
        QVERIFY(!copy->isEnabled());
        shell.menu->setEnabled(true);
        QVERIFY(copy->isEnabled());
    }

    void barFunctionKeys()
    {
        Shell shell;
        shell.setEntries({"a", "b"});
        OrvDragIcon* a = shell.copy("a");
        OrvDragIcon* b = shell.copy("b");
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "a"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F7, "a")); // an entry has one key at most
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F7, "a"}}));
        QCOMPARE(a->modification(), QStringLiteral("F7"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F7, "b"));
        QVERIFY(a->modification().isEmpty());
        // Keys outside F5-F12 and unknown entries are refused and change nothing.
        const QList<QPair<int, QString>> refused{
            {Qt::Key_F4, "a"}, {Qt::Key_F13, "a"}, {Qt::Key_F6, "zzz"}, {Qt::Key_F6, ""}};
        for (const auto& [key, identifier] : refused) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^OrvToolBarArea::setFunctionKey: "));
            QVERIFY(!shell.bar->setFunctionKey(key, identifier));
        }
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F7, "b"}}));
        QCOMPARE(b->modification(), QStringLiteral("F7"));
        QCOMPARE(stored("functionKeys").toString(), QStringLiteral("F7=b"));
        QVERIFY(shell.bar->removeFunctionKey("b"));
        QVERIFY(b->modification().isEmpty());
        QVERIFY(!shell.bar->removeFunctionKey("b"));
        QVERIFY(shell.bar->functionKeys().isEmpty());
    }

    void barContextMenuKeys()
    {
        const auto name = [](int k) { return QStringLiteral("F%1").arg(k - Qt::Key_F1 + 1); };
        Shell shell;
        shell.originals.value("b")->setText(QStringLiteral("Map & Grid"));
        shell.setEntries({"a", "b"});
        QVERIFY(shell.exposed);
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F8, "b"));

        QMenu* menu = shell.openContextMenu("a");
        QVERIFY(menu);
        QMenu* keys = menu->findChild<QMenu*>();
        QVERIFY(keys && menu->actions().contains(keys->menuAction()));
        QCOMPARE(keys->title(), QStringLiteral("Function Key"));
        QStringList texts, expected;
        for (QAction* action : keys->actions())
            texts << (action->isSeparator() ? QStringLiteral("|") : action->text());
        for (int k = Qt::Key_F5; k <= Qt::Key_F12; ++k)
            expected << name(k) + (k == Qt::Key_F8 ? " - Map && Grid" : "");
        expected << "|" << "Remove Function Key";
        QCOMPARE(texts, expected);

        for (int key : {Qt::Key_F5, Qt::Key_F12}) {
            keys->actions().at(key - Qt::Key_F5)->trigger();
            QCOMPARE(shell.bar->functionKeys(), (KeyMap{{key, "a"}, {Qt::Key_F8, "b"}}));
            QCOMPARE(shell.copy("a")->modification(), name(key));
        }
        keys->actions().last()->trigger();
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F8, "b"}}));
    }

    void barPressingBoundKeyClicksOriginal()
    {
        Shell shell;
        shell.setEntries({"a", "b"});
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F6, "b"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F6, "a")); // rebinding moves the shortcut
        shell.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shell.window));
        QSignalSpy clickedA(shell.originals.value("a"), &OrvDragIcon::clicked);
        QSignalSpy clickedB(shell.originals.value("b"), &OrvDragIcon::clicked);
        QTest::keyClick(&shell.window, Qt::Key_F8); // free key
        QTest::keyClick(&shell.window, Qt::Key_F6);
        QCOMPARE(clickedA.size(), 1);
        QCOMPARE(clickedB.size(), 0);
    }

    // Entries leave with their original, by the context menu or by call; an
    // empty bar shows a placeholder.
    void barRemoveEntries()
    {
        Shell shell;
        const auto placeholder = [&] { return shell.bar->findChild<QLabel*>(QStringLiteral("dummyLabel")); };
        QVERIFY(placeholder() && !placeholder()->text().isEmpty());
        shell.setEntries({"a", "b"});
        QVERIFY(!placeholder());
        shell.bar->addMenuEntry(shell.originals.value("c"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "b"));
        QVERIFY(shell.bar->setFunctionKey(Qt::Key_F9, "a"));
        const QVariant entries = stored("entries");
        const QVariant keys = stored("functionKeys");
        QPointer<OrvDragIcon> copy = shell.copy("b");
        delete shell.originals.take("b");
        QCOMPARE(shell.bar->menuEntries(), QStringList({"a", "c"}));
        QCOMPARE(shell.bar->functionKeys(), (KeyMap{{Qt::Key_F9, "a"}}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!copy);
        // Shutdown destroys originals too: the stored bar must survive that.
        QCOMPARE(stored("entries"), entries);
        QCOMPARE(stored("functionKeys"), keys);

        QMenu* menu = shell.openContextMenu("a"); // pairs still line up
        QVERIFY(menu);
        QCOMPARE(menu->actions().first()->text(), QStringLiteral("Remove"));
        menu->actions().first()->trigger();
        QCOMPARE(shell.bar->menuEntries(), QStringList({"c"}));
        QVERIFY(shell.bar->functionKeys().isEmpty());
        QCOMPARE(stored("entries").toString(), QStringLiteral("c"));
        QVERIFY(!shell.bar->removeMenuAction(shell.originals.value("a")));
        QVERIFY(shell.bar->removeMenuAction(shell.originals.value("c")));
        QVERIFY(placeholder());
    }

    void barPersistenceRoundTrip()
    {
        {
            Shell shell;
            shell.setEntries({"c", "a", "b"});
            QVERIFY(shell.bar->setFunctionKey(Qt::Key_F12, "a"));
            QVERIFY(shell.bar->setFunctionKey(Qt::Key_F5, "c"));
        }
        settings()->setFileName(settings()->fileName()); // read back from disk

        // With an entry missing the rest is restored and nothing is written.
        Shell partial;
        QCOMPARE(partial.bar->savedEntries(), QStringList({"c", "a", "b"}));
        delete partial.originals.take("a");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("restoreSettings: skipping stored entry a "));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("setFunctionKey: no entry a "));
        QVERIFY(!partial.bar->restoreSettings(partial.originals.values()));
        QCOMPARE(partial.bar->menuEntries(), QStringList({"c", "b"}));
        QCOMPARE(partial.bar->functionKeys(), (KeyMap{{Qt::Key_F5, "c"}}));
        QCOMPARE(partial.copy("c")->modification(), QStringLiteral("F5"));
        QCOMPARE(stored("entries").toStringList(), QStringList({"c", "a", "b"}));
        QCOMPARE(stored("functionKeys").toStringList(), QStringList({"F5=c", "F12=a"}));
    }

    void barCorruptStoredData_data()
    {
        QTest::addColumn<QVariant>("entries");
        QTest::addColumn<QVariant>("keys");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<QStringList>("restored");
        QTest::addColumn<KeyMap>("restoredKeys");
        using L = QStringList;
        using V = QVariant;
        const L abc{"a", "b", "c"};
        const KeyMap none;
        QTest::newRow("unknown entry") << V(L{"a", "gone", "b"}) << V() << L{"stored entry gone "} << L{"a", "b"}
                                       << none;
        QTest::newRow("one entry as text") << V("b") << V("F8=b") << L() << L{"b"} << KeyMap{{Qt::Key_F8, "b"}};
        QTest::newRow("repeated entry") << V(L{"a", "a", ""}) << V()
                                        << L{"repeated stored entry a", "repeated stored entry $"} << L{"a"} << none;
        QTest::newRow("entries of wrong type") << V(QRect(1, 2, 3, 4)) << V() << L{"stored entries of type QRect"}
                                               << L() << none;
        QTest::newRow("mixed list") << V(QVariantList{"a", 7, "c"}) << V() << L{"stored entries item of type int"}
                                    << L{"a", "c"} << none;
        QTest::newRow("keys outside F5-F12") << V(abc) << V(L{"F4=a", "F13=b", "Ctrl+F6=c", "F6=a"})
                                             << L{"key F4=a", "key F13=b", "key Ctrl\\+F6=c"} << abc
                                             << KeyMap{{Qt::Key_F6, "a"}};
        QTest::newRow("malformed keys") << V(abc) << V(L{"a", "=a", "F5=", "F5=a", "F5=b", "F7=a"})
                                        << L{"key a$", "key =a", "key F5=$", "key F5=b", "key F7=a"} << abc
                                        << KeyMap{{Qt::Key_F5, "a"}};
        QTest::newRow("key of missing entry") << V(L{"a"}) << V(L{"F9=c"}) << L{"no entry c "} << L{"a"} << none;
        QTest::newRow("keys of wrong type") << V(abc) << V(42) << L{"stored functionKeys of type int"} << abc << none;
    }
    void barCorruptStoredData()
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
