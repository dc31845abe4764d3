// The compact editor: its character limit on every way in, plain-text mode, its one row.

#include <orv_text_editor.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextEdit>
#include <QToolBar>
#include <QtTest>

using namespace OrvWidgets;

class tst_OrvTextEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limitHoldsForEveryWayIn_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("after");
        // Limit 10 throughout.
        QTest::newRow("typing stops at the limit") << QStringLiteral("12345678") << 8 << QStringLiteral("type")
                                                   << QStringLiteral("abcd") << QStringLiteral("12345678ab");
        QTest::newRow("typing in the middle") << QStringLiteral("123456789") << 3 << QStringLiteral("type")
                                              << QStringLiteral("xy") << QStringLiteral("123x456789");
        QTest::newRow("paste is cut to what fits") << QStringLiteral("1234567") << 7 << QStringLiteral("paste")
                                                   << QStringLiteral("abcdef") << QStringLiteral("1234567abc");
        QTest::newRow("paste in the middle keeps the end") << QStringLiteral("12345678") << 2 << QStringLiteral("paste")
                                                           << QStringLiteral("abcd") << QStringLiteral("12ab345678");
        QTest::newRow("paste within the limit") << QStringLiteral("123") << 3 << QStringLiteral("paste")
                                                << QStringLiteral("abc") << QStringLiteral("123abc");
        QTest::newRow("program sets a long text") << QString() << 0 << QStringLiteral("set")
                                                  << QStringLiteral("abcdefghijklmnop") << QStringLiteral("abcdefghij");
    }
    void limitHoldsForEveryWayIn()
    {
        QFETCH(QString, before);
        QFETCH(int, cursor);
        QFETCH(QString, way);
        QFETCH(QString, input);
        QFETCH(QString, after);
        OrvTextEditor editor;
        editor.setPlainText(before);
        editor.setMaximumLength(10);
        QSignalSpy refused(&editor, &OrvTextEditor::limitReached);
        QTextCursor caret = editor.textEdit()->textCursor();
        caret.setPosition(cursor);
        editor.textEdit()->setTextCursor(caret);
        if (way == QLatin1String("type")) {
            QTest::keyClicks(editor.textEdit(), input);
        } else if (way == QLatin1String("paste")) {
            QApplication::clipboard()->setText(input);
            editor.textEdit()->paste();
        } else {
            editor.setPlainText(input);
        }
        QCOMPARE(editor.plainText(), after);
        QVERIFY(editor.length() <= 10);
        QCOMPARE(refused.isEmpty(), before.size() + input.size() <= 10);
        // The refusal shows: the counter is full and says why.
        QCOMPARE(editor.counterLabel()->text(), QStringLiteral("%1 / 10").arg(after.size()));
        QCOMPARE(editor.counterLabel()->toolTip().isEmpty(), refused.isEmpty());
    }

    void cutPasteIsOneUndoStep()
    {
        OrvTextEditor editor;
        editor.setMaximumLength(5);
        editor.setPlainText(QStringLiteral("ab"));
        editor.textEdit()->moveCursor(QTextCursor::End);
        QApplication::clipboard()->setText(QStringLiteral("cdefgh"));
        editor.textEdit()->paste();
        QCOMPARE(editor.plainText(), QStringLiteral("abcde"));
        editor.textEdit()->undo();
        QCOMPARE(editor.plainText(), QStringLiteral("ab"));
    }

    void loweringTheLimitCutsTheText()
    {
        OrvTextEditor editor;
        editor.setPlainText(QStringLiteral("Report to the control room at 0800Z."));
        QVERIFY(!editor.counterLabel()->isVisibleTo(&editor));
        QSignalSpy limit(&editor, &OrvTextEditor::maximumLengthChanged);
        editor.setMaximumLength(6);
        QCOMPARE(editor.plainText(), QStringLiteral("Report"));
        QVERIFY(editor.counterLabel()->isVisibleTo(&editor));
        editor.setMaximumLength(6);
        QCOMPARE(limit.size(), 1);
        editor.setMaximumLength(0);
        QTest::keyClicks(editor.textEdit(), QStringLiteral(" to all"));
        QCOMPARE(editor.length(), 13);
    }

    void plainTextModeDropsFormattingAndItsShortcuts()
    {
        OrvTextEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        editor.setHtml(QStringLiteral("<p><b>Bold</b> start</p>"));
        QVERIFY(editor.html().contains(QLatin1String("font-weight:700")));
        QSignalSpy mode(&editor, &OrvTextEditor::plainTextModeChanged);
        editor.setPlainTextMode(true);
        QCOMPARE(mode.size(), 1);
        QVERIFY(!editor.toolBar()->isVisibleTo(&editor));
        QCOMPARE(editor.plainText(), QStringLiteral("Bold start"));
        QVERIFY(!editor.html().contains(QLatin1String("font-weight:700")));
        // Ctrl+B does nothing any more.
        editor.textEdit()->setFocus();
        editor.textEdit()->selectAll();
        QTest::keyClick(editor.textEdit(), Qt::Key_B, Qt::ControlModifier);
        QVERIFY(!editor.html().contains(QLatin1String("font-weight:700")));
        // Pasted HTML arrives as its text.
        auto* mime = new QMimeData;
        mime->setHtml(QStringLiteral("<i>slanted</i>"));
        mime->setText(QStringLiteral("slanted"));
        QApplication::clipboard()->setMimeData(mime);
        editor.textEdit()->moveCursor(QTextCursor::End);
        editor.textEdit()->paste();
        QVERIFY(!editor.html().contains(QLatin1String("font-style:italic")));
        QVERIFY(editor.plainText().endsWith(QLatin1String("slanted")));

        editor.setPlainTextMode(false);
        QVERIFY(editor.toolBar()->isVisibleTo(&editor));
        editor.textEdit()->selectAll();
        QTest::keyClick(editor.textEdit(), Qt::Key_B, Qt::ControlModifier);
        QVERIFY(editor.html().contains(QLatin1String("font-weight:700")));
    }

    void oneRowOfEssentialActions()
    {
        OrvTextEditor editor;
        QStringList shown;
        for (QAction* action : editor.toolBar()->actions()) {
            if (!action->isSeparator())
                shown << action->text();
        }
        QCOMPARE(shown, QStringList({QStringLiteral("Bold"), QStringLiteral("Italic"), QStringLiteral("Underline"),
                                     QStringLiteral("Bullet List"), QStringLiteral("Numbered List")}));
    }
};

QTEST_MAIN(tst_OrvTextEditor)
#include "tst_orv_text_editor.moc"
