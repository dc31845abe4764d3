// The searchable popup and the combo box built on it, driven by keyboard and mouse.

#include <orv_combo_box.h>
#include <orv_selection_popup.h>

#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTest>

using namespace OrvWidgets;

namespace {

const QStringList kPlaces = {QStringLiteral("Berlin"), QStringLiteral("Zürich"), QStringLiteral("Bern"),
                             QStringLiteral("Århus"),  QStringLiteral("Zagreb"), QStringLiteral("MÜNCHEN"),
                             QStringLiteral("Lübeck")};

QStringList visibleTexts(const OrvSelectionPopup& popup)
{
    QStringList texts;
    QAbstractItemModel* shown = popup.listView()->model();
    for (int row = 0; row < shown->rowCount(); ++row)
        texts << shown->index(row, 0).data().toString();
    return texts;
}

// Types text key by key, accents included.
void type(QWidget* widget, const QString& text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

} // namespace

class tst_OrvSelectionPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filterIgnoresCaseAndAccents_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("empty shows all") << QString() << kPlaces;
        QTest::newRow("accent in the item") << QStringLiteral("zur") << QStringList{QStringLiteral("Zürich")};
        QTest::newRow("accent typed") << QStringLiteral("ZÜR") << QStringList{QStringLiteral("Zürich")};
        QTest::newRow("upper-case item") << QStringLiteral("münch") << QStringList{QStringLiteral("MÜNCHEN")};
        QTest::newRow("ring above") << QStringLiteral("arh") << QStringList{QStringLiteral("Århus")};
        QTest::newRow("substring anywhere")
            << QStringLiteral("er") << QStringList{QStringLiteral("Berlin"), QStringLiteral("Bern")};
        QTest::newRow("nothing") << QStringLiteral("xyz") << QStringList();
    }
    void filterIgnoresCaseAndAccents()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, expected);
        QStringListModel model(kPlaces);
        OrvSelectionPopup popup;
        popup.setModel(&model);
        // Typed one key at a time, so that narrowing and widening both take part.
        type(popup.searchLine(), QStringLiteral("b"));
        popup.searchLine()->clear();
        type(popup.searchLine(), typed);
        QCOMPARE(visibleTexts(popup), expected);
        QCOMPARE(popup.visibleCount(), expected.size());
    }

    // Narrowing looks only at the rows that passed before: it must give what a fresh
    // filter gives, whatever was typed, deleted and typed again.
    void randomTypingMatchesAFreshFilter()
    {
        QStringList items;
        QRandomGenerator random(20261124);
        const QString letters = QStringLiteral("abcdeéü");
        for (int i = 0; i < 400; ++i) {
            QString item;
            for (int c = 0; c < 6; ++c)
                item += letters.at(random.bounded(letters.size()));
            items << item;
        }
        QStringListModel model(items);
        OrvSelectionPopup popup;
        popup.setModel(&model);
        for (int step = 0; step < 300; ++step) {
            if (random.bounded(3) == 0 && !popup.filterText().isEmpty())
                QTest::keyClick(popup.searchLine(), Qt::Key_Backspace);
            else
                type(popup.searchLine(), QString(letters.at(random.bounded(letters.size()))));
            const QString needle = OrvSelectionPopup::foldedText(popup.filterText());
            QStringList expected;
            for (const QString& item : std::as_const(items)) {
                if (OrvSelectionPopup::foldedText(item).contains(needle))
                    expected << item;
            }
            QCOMPARE(visibleTexts(popup), expected);
        }
    }

    void keyboardPicksAndEscapeCancels()
    {
        QStringListModel model(kPlaces);
        QWidget anchor;
        anchor.resize(200, 30);
        anchor.show();
        OrvSelectionPopup popup(&anchor);
        popup.setModel(&model);
        QSignalSpy activated(&popup, &OrvSelectionPopup::rowActivated);
        QSignalSpy closed(&popup, &OrvSelectionPopup::closed);

        popup.showAt(&anchor);
        QVERIFY(popup.isVisible());
        QTest::keyClicks(popup.searchLine(), QStringLiteral("b"));
        QTest::keyClick(popup.searchLine(), Qt::Key_Down);
        QTest::keyClick(popup.searchLine(), Qt::Key_Return);
        QCOMPARE(activated.size(), 1);
        // "b" leaves Berlin, Bern and Lübeck with Berlin current; Down moves to Bern.
        QCOMPARE(activated.at(0).at(0).toInt(), 2);
        QVERIFY(!popup.isVisible());
        QCOMPARE(closed.size(), 1);

        popup.showAt(&anchor);
        QTest::keyClick(popup.searchLine(), Qt::Key_Escape);
        QVERIFY(!popup.isVisible());
        QCOMPARE(activated.size(), 1);
    }

    void spaceChecksInMultipleSelection()
    {
        QStringListModel model(kPlaces);
        OrvSelectionPopup popup;
        popup.setModel(&model);
        popup.setMultiSelection(true);
        QSignalSpy changed(&popup, &OrvSelectionPopup::checkedRowsChanged);
        popup.setCurrentRow(3);
        QTest::keyClick(popup.listView(), Qt::Key_Space);
        popup.setCurrentRow(1);
        QTest::keyClick(popup.listView(), Qt::Key_Space);
        QCOMPARE(popup.checkedRows(), QList<int>({1, 3}));
        QCOMPARE(popup.listView()->model()->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QTest::keyClick(popup.listView(), Qt::Key_Space);
        QCOMPARE(popup.checkedRows(), QList<int>({3}));
        QCOMPARE(changed.size(), 3);

        // Checks survive filtering: they belong to the model's rows, not to the list's.
        popup.setFilterText(QStringLiteral("zag"));
        QCOMPARE(popup.checkedRows(), QList<int>({3}));
        popup.setMultiSelection(false);
        QVERIFY(popup.checkedRows().isEmpty());
    }

    void staysInsideTheScreen_data()
    {
        QTest::addColumn<QPoint>("anchorAt");
        QTest::addColumn<bool>("expectAbove");
        QTest::newRow("top left") << QPoint(0, 0) << false;
        QTest::newRow("bottom right") << QPoint(-1, -1) << true;
    }
    void staysInsideTheScreen()
    {
        QFETCH(QPoint, anchorAt);
        QFETCH(bool, expectAbove);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QStringList many;
        for (int i = 0; i < 200; ++i)
            many << QStringLiteral("Item %1").arg(i);
        QStringListModel model(many);
        QWidget anchor(nullptr, Qt::FramelessWindowHint);
        anchor.resize(120, 24);
        anchor.move(anchorAt.x() < 0 ? screen.right() - 60 : screen.left(),
                    anchorAt.y() < 0 ? screen.bottom() - 30 : screen.top());
        anchor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&anchor));
        OrvSelectionPopup popup(&anchor);
        popup.setModel(&model);
        popup.showAt(&anchor);
        QVERIFY2(
            screen.contains(popup.geometry()),
            qPrintable(
                QStringLiteral("%1,%2 %3x%4").arg(popup.x()).arg(popup.y()).arg(popup.width()).arg(popup.height())));
        QCOMPARE(popup.geometry().bottom() < anchor.geometry().top(), expectAbove);
        QVERIFY(popup.width() >= anchor.width());
    }

    void comboKeepsTheComboBoxApi()
    {
        OrvComboBox combo;
        combo.addItems(kPlaces);
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        QSignalSpy activated(&combo, &QComboBox::activated);
        QSignalSpy current(&combo, &QComboBox::currentIndexChanged);

        // Typing on the closed box opens the search with that text.
        QTest::keyClicks(&combo, QStringLiteral("z"));
        OrvSelectionPopup* popup = combo.selectionPopup();
        QVERIFY(popup->isVisible());
        QCOMPARE(popup->filterText(), QStringLiteral("z"));
        QTest::keyClicks(popup->searchLine(), QStringLiteral("ag"));
        QTest::keyClick(popup->searchLine(), Qt::Key_Return);
        QCOMPARE(combo.currentIndex(), 4);
        QCOMPARE(combo.currentText(), QStringLiteral("Zagreb"));
        QCOMPARE(activated.size(), 1);
        QCOMPARE(current.size(), 1);
        QVERIFY(!popup->isVisible());

        // Reopened, the search is empty and the current item is the chosen one.
        combo.showPopup();
        QCOMPARE(popup->filterText(), QString());
        QCOMPARE(popup->currentRow(), 4);
        combo.hidePopup();
    }

    void comboSummarisesCheckedItems()
    {
        OrvComboBox combo;
        combo.setPlaceholderText(QStringLiteral("Roles"));
        combo.addItems({QStringLiteral("Observer"), QStringLiteral("Controller"), QStringLiteral("Umpire"),
                        QStringLiteral("Liaison officer")});
        combo.setMultiSelection(true);
        combo.resize(400, combo.sizeHint().height());
        QCOMPARE(combo.summaryText(), QStringLiteral("Roles"));
        QSignalSpy changed(&combo, &OrvComboBox::checkedRowsChanged);
        combo.setCheckedRows({0, 2});
        QCOMPARE(changed.size(), 1);
        QCOMPARE(combo.checkedTexts(), QStringList({QStringLiteral("Observer"), QStringLiteral("Umpire")}));
        QCOMPARE(combo.summaryText(), QStringLiteral("Observer, Umpire"));
        combo.setCheckedRows({0, 1, 2, 3});
        combo.resize(120, combo.height());
        QCOMPARE(combo.summaryText(), QStringLiteral("4 selected"));
        // Setting the same checks again is no change.
        combo.setCheckedRows({0, 1, 2, 3});
        QCOMPARE(changed.size(), 2);
    }

    void followsModelChanges()
    {
        QStandardItemModel model;
        for (const QString& place : kPlaces)
            model.appendRow(new QStandardItem(place));
        OrvSelectionPopup popup;
        popup.setModel(&model);
        popup.setFilterText(QStringLiteral("ber"));
        QCOMPARE(popup.visibleCount(), 2);
        model.appendRow(new QStandardItem(QStringLiteral("Bergen")));
        QCOMPARE(visibleTexts(popup),
                 QStringList({QStringLiteral("Berlin"), QStringLiteral("Bern"), QStringLiteral("Bergen")}));
        model.item(0)->setText(QStringLiteral("Paris"));
        QCOMPARE(popup.visibleCount(), 2);
        model.clear();
        QCOMPARE(popup.visibleCount(), 0);
    }
};

QTEST_MAIN(tst_OrvSelectionPopup)
#include "tst_orv_selection_popup.moc"
