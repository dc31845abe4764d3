#include "drag_session.h"

#include <orv_drag_icon.h>

#include <QAction>
#include <QButtonGroup>
#include <QMenu>
#include <QtTest>

using namespace OrvWidgets;
using OrvTest::filledIcon;

namespace {
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
} // namespace

class TestOrvDragIcon : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void styles_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("buttonStyle");
        QTest::addColumn<QSizePolicy>("policy");
        QTest::addColumn<bool>("fixed");
        using P = QSizePolicy;
        QTest::newRow("all") << int(eAll) << int(Qt::ToolButtonTextUnderIcon) << P(P::MinimumExpanding, P::Minimum) << false;
        QTest::newRow("text") << int(eTextOnly) << int(Qt::ToolButtonTextOnly) << P(P::Minimum, P::Fixed) << false;
        QTest::newRow("icon") << int(eIconOnly) << int(Qt::ToolButtonIconOnly) << P(P::Fixed, P::Fixed) << true;
        QTest::newRow("next to") << int(eTextNextToIcon) << int(Qt::ToolButtonTextUnderIcon) << P(P::Minimum, P::Fixed) << false;
    }
    void styles()
    {
        QFETCH(int, style);
        QFETCH(int, buttonStyle);
        QFETCH(QSizePolicy, policy);
        QFETCH(bool, fixed);
        OrvDragIcon icon;
        // Start from the opposite look so that each style has to undo it.
        icon.setButtonStyle(style == eIconOnly ? eTextOnly : eIconOnly);
        icon.setButtonStyle(ButtonStyle(style));
        QCOMPARE(int(icon.toolButton()->toolButtonStyle()), buttonStyle);
        QCOMPARE(icon.sizePolicy().horizontalPolicy(), policy.horizontalPolicy());
        QCOMPARE(icon.sizePolicy().verticalPolicy(), policy.verticalPolicy());
        QCOMPARE(icon.minimumSize(), QSize(40, 40));
        QCOMPARE(icon.maximumSize(), fixed ? QSize(40, 40) : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    // Rebuilding the inner button keeps its state and the relayed signals.
    void rebuildKeepsButtonState()
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
        QSignalSpy enabled(icon, &OrvDragIcon::enabledChanged);

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
        icon->setButtonVisible(true);
        QVERIFY(icon->buttonVisible());
        icon->toolButton()->click();
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(toggled.size(), 1);
        QVERIFY(!icon->isChecked());
        Q_EMIT icon->toolButton()->dropSuc();
        QCOMPARE(dropSuc.size(), 1);
        QMimeData mime;
        QDropEvent event(QPointF(1, 1), Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
        Q_EMIT icon->toolButton()->newDropEvent(&event);
        QCOMPARE(drop.size(), 1);
        parent.setEnabled(false);
        QCOMPARE(enabled.size(), 1);
        QCOMPARE(enabled.at(0).at(0).toBool(), false);
    }

    void toolTip_data()
    {
        QTest::addColumn<QString>("initialText");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("tip");
        QTest::newRow("text only") << "" << "Map" << "" << "Map";
        QTest::newRow("with context") << "" << "Map" << "Planning" << "Planning - Map";
        QTest::newRow("no text") << "" << "" << "Planning" << "";
        QTest::newRow("text removed") << "Old" << "" << "Planning" << "";
        QTest::newRow("renamed") << "Old" << "Map" << "Planning" << "Planning - Map";
    }
    void toolTip()
    {
        QFETCH(QString, initialText);
        QFETCH(QString, text);
        QFETCH(QString, context);
        QFETCH(QString, tip);
        OrvDragIcon icon;
        icon.setText(initialText);
        icon.setContext(context);
        icon.setText(text);
        QCOMPARE(icon.toolButton()->text(), text);
        QCOMPARE(icon.toolButton()->toolTip(), tip);
    }

    void modificationMark_data()
    {
        QTest::addColumn<bool>("withIcon");
        QTest::newRow("icon") << true;
        QTest::newRow("no icon") << false;
    }
    void modificationMark()
    {
        QFETCH(bool, withIcon);
        OrvDragIcon icon;
        const QIcon blue = withIcon ? filledIcon(Qt::blue) : QIcon();
        icon.setIcon(blue);
        icon.setModification(QStringLiteral("F12"));
        QCOMPARE(icon.icon().cacheKey(), blue.cacheKey());
        const QImage marked = icon.toolButton()->icon().pixmap(QSize(32, 32), 1.0).toImage();
        QCOMPARE(marked.size(), QSize(32, 32));
        QVERIFY(redPixels(marked, QRect(0, 0, 28, 28)) > 10);
        QCOMPARE(redPixels(marked, QRect(29, 0, 3, 32)), 0);
        if (withIcon)
            QCOMPARE(marked.pixelColor(31, 31), QColor(Qt::blue));
        // High-density screens get a copy painted at their resolution.
        const QImage dense = icon.toolButton()->icon().pixmap(QSize(32, 32), 2.0).toImage();
        QCOMPARE(dense.size(), QSize(64, 64));
        QVERIFY(redPixels(dense, QRect(0, 0, 56, 56)) > 40);
        QCOMPARE(redPixels(dense, QRect(58, 0, 6, 64)), 0);

        icon.removeModification();
        QCOMPARE(icon.toolButton()->icon().cacheKey(), blue.cacheKey());
    }

    void designerPropertiesAndAction()
    {
        OrvDragIcon icon;
        QVERIFY(icon.setProperty("eStyle", QStringLiteral("eIconOnly")));
        QCOMPARE(icon.buttonStyle(), eIconOnly);
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

    void dragThreshold_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<bool>("drags");
        QTest::newRow("4 right") << QPoint(4, 0) << false;
        QTest::newRow("2+2") << QPoint(2, -2) << false;
        QTest::newRow("4 down") << QPoint(0, 4) << false;
        QTest::newRow("5 right") << QPoint(5, 0) << true;
        QTest::newRow("3+2") << QPoint(-3, 2) << true;
    }
    void dragThreshold()
    {
        QFETCH(QPoint, delta);
        QFETCH(bool, drags);
        QWidget window;
        auto* icon = new OrvDragIcon(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy clicked(icon, &OrvDragIcon::clicked);
        QSignalSpy dropSuc(icon, &OrvDragIcon::dropSuc);
        const QPoint start(10, 10);
        bool dragSeen = false;
        QCOMPARE(OrvTest::pressAndMove(icon, start, start + delta,
                                       [&] { dragSeen = icon->toolButton()->findChild<QDrag*>() != nullptr; }),
                 drags);
        QCOMPARE(dragSeen, drags);
        OrvTest::sendMouse(icon->toolButton(), QEvent::MouseButtonRelease, start + delta, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(clicked.size(), drags ? 0 : 1);
        QCOMPARE(dropSuc.size(), 0); // cancelled: no success
        icon->setDraggable(false);
        QVERIFY(!OrvTest::pressAndMove(icon, start, start + QPoint(20, 0), [] {}));
    }

    void dragData_data()
    {
        QTest::addColumn<QString>("buttonName");
        QTest::addColumn<QString>("iconName");
        QTest::addColumn<qulonglong>("handlerKey");
        QTest::addColumn<bool>("withAction");
        QTest::addColumn<bool>("showDragIcon");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("pixmapColor");
        QTest::newRow("icon name") << "" << "entry" << 0ULL << false << true << "entry" << QColor(Qt::blue);
        QTest::newRow("button first") << "inner" << "entry" << 0ULL << false << true << "inner" << QColor(Qt::blue);
        QTest::newRow("no name") << "" << "" << 0ULL << true << false << "" << QColor(Qt::blue);
        QTest::newRow("handler key") << "" << "entry" << 18446744073709551615ULL << true << true << "entry"
                                     << QColor(Qt::green);
    }
    void dragData()
    {
        QFETCH(QString, buttonName);
        QFETCH(QString, iconName);
        QFETCH(qulonglong, handlerKey);
        QFETCH(bool, withAction);
        QFETCH(bool, showDragIcon);
        QFETCH(QString, text);
        QFETCH(QColor, pixmapColor);
        QWidget window;
        window.setObjectName(QStringLiteral("window")); // beyond the drag icon: never used
        auto* icon = new OrvDragIcon(&window);
        QAction action(filledIcon(Qt::green), QStringLiteral("Act"));
        if (withAction)
            icon->setAction(&action);
        icon->setObjectName(iconName);
        icon->toolButton()->setObjectName(buttonName);
        icon->setIcon(filledIcon(Qt::blue));
        icon->setShowDragIcon(showDragIcon);
        icon->setDropHandlerKey(handlerKey);
        icon->addMimeData(QStringLiteral("application/x-a"), "A");
        icon->addMimeData(QStringLiteral("application/x-c"), "C");
        QVERIFY(icon->removeMimeData(QStringLiteral("application/x-c")));
        QVERIFY(!icon->removeMimeData(QStringLiteral("application/x-c")));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QVERIFY(OrvTest::duringDrag(icon, [&] {
            auto* drag = icon->toolButton()->findChild<QDrag*>();
            QVERIFY(drag);
            const QMimeData* mime = drag->mimeData();
            QCOMPARE(mime->text(), text);
            QCOMPARE(mime->data(QStringLiteral("application/x-a")), QByteArray("A"));
            QVERIFY(!mime->hasFormat(QStringLiteral("application/x-c")));
            QCOMPARE(mime->hasFormat(QStringLiteral("DropHandlerPtr")), handlerKey != 0);
            if (handlerKey != 0)
                QCOMPARE(mime->data(QStringLiteral("DropHandlerPtr")), QByteArray::number(handlerKey));
            QCOMPARE(drag->pixmap().deviceIndependentSize().toSize(), QSize(16, 16));
            QCOMPARE(drag->pixmap().toImage().pixelColor(8, 8), pixmapColor);
        }));
    }

    void dragEnterOnButton()
    {
        QWidget window;
        auto* source = new OrvDragIcon(&window);
        auto* other = new OrvDragIcon(&window);
        source->setAcceptDrops(true);
        other->setAcceptDrops(true);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QMimeData mime;
        const auto enter = [&](QWidget* receiver) {
            QDragEnterEvent event(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
            event.setDropAction(Qt::CopyAction);
            QCoreApplication::sendEvent(receiver, &event);
            return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
        };
        QCOMPARE(enter(other->toolButton()), Qt::IgnoreAction); // no drag running: no source
        QVERIFY(OrvTest::duringDrag(source, [&] {
            QCOMPARE(enter(source->toolButton()), Qt::IgnoreAction);
            QCOMPARE(enter(other->toolButton()), Qt::MoveAction);
            source->setSameWidgetDrop(true);
            QCOMPARE(enter(source->toolButton()), Qt::MoveAction);
        }));
    }
};

QTEST_MAIN(TestOrvDragIcon)
#include "tst_orv_drag_icon.moc"
