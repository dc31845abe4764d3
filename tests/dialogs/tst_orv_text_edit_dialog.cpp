#include <orv_dialog_button_box.h>
#include <orv_dialog_helper.h>
#include <orv_test_support.h>
#include <orv_text_edit_dialog.h>
#include <orv_text_editor2.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace {
// A page filled before it is shown (filling a shown page counts as an edit);
// the frame, and with it the page, goes at scope end.
struct Opened
{
    explicit Opened(const QString& html = QString())
    {
        page->setHtml(html);
        frame->show();
    }
    ~Opened() { delete frame.data(); }
    QPushButton* button(DialogButton which) const { return frame->getButtonBox()->getButton(which); }
    QPointer<OrvTextEditDialog> page = new OrvTextEditDialog;
    QPointer<OrvDialogHelper> frame = page->getHelper();
    OrvTextEditor2* editor = page->findChild<OrvTextEditor2*>();
};
} // namespace

class TestOrvTextEditDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Changing only the colour makes the page appliable; applying sends the HTML
    // as it is and with the colour placed in the body style.
    void backgroundColorApply_data()
    {
        QTest::addColumn<QString>("html");
        QTest::newRow("empty document") << QString();
        QTest::newRow("styled text") << "<p><span style=\"font-family:'Serif';\">text</span></p>";
    }
    void backgroundColorApply()
    {
        QFETCH(QString, html);
        Opened o(html);
        QCOMPARE(o.page->windowTitle(), QStringLiteral("Edit Text"));
        o.page->setInitialBackgroundColor(Qt::white);
        o.page->enableBackgroundColor(true);
        QSignalSpy colour(o.page, &OrvTextEditDialog::signalBackgroundColorChanged);
        QSignalSpy applied(o.page, &OrvTextEditDialog::signalTextApplied);
        QSignalSpy withColour(o.page, &OrvTextEditDialog::signalTextAppliedWithBackGroundColor);
        QVERIFY(!o.button(Apply)->isEnabled());

        o.editor->setBackgroundColor(QColor(0x12, 0x34, 0xab));
        QCOMPARE(colour.count(), 1);
        QVERIFY(o.button(Ok)->isEnabled() && o.button(Apply)->isEnabled());
        o.button(Apply)->click();
        QCOMPARE(withColour.count(), 1);
        const QString plain = applied.value(0).value(0).toString();
        QCOMPARE(plain, o.page->getHtmlText());
        const QString fragment = QStringLiteral("background-color:'#1234ab'; ");
        QCOMPARE(withColour.at(0).at(0).toString(), QString(plain).insert(plain.indexOf("font-family"), fragment));
        QVERIFY(withColour.at(0).at(0).toString().contains("<body style=\" " + fragment + "font-family:"));
        QVERIFY(!o.page->hasUnsavedChanges());
    }

    void typingThenOkAppliesAndCloses()
    {
        Opened o;
        QSignalSpy changed(o.page, &OrvTextEditDialog::signalTextChanged);
        QSignalSpy applied(o.page, &OrvTextEditDialog::signalTextApplied);
        QTest::keyClicks(o.editor->textEdit(), "ab");
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().at(0).toString(), o.page->getHtmlText());
        o.button(Ok)->click();
        QVERIFY(applied.value(0).value(0).toString().contains(">ab<"));
        QTRY_VERIFY(!o.frame);
    }

    void discardCancelsBeforeClosing()
    {
        Opened o;
        QTest::keyClicks(o.editor->textEdit(), "x");
        QList<bool> openWhenCanceled;
        connect(o.page, &OrvTextEditDialog::signalDialogCanceled, this,
                [&] { openWhenCanceled << (o.frame && o.frame->isVisible()); });
        OrvTest::DialogAnswerer answerer;
        answerer.click("Discard");
        o.page->closeRequest();
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(openWhenCanceled, QList<bool>{true});
        QTRY_VERIFY(!o.frame);
    }
};

QTEST_MAIN(TestOrvTextEditDialog)
#include "tst_orv_text_edit_dialog.moc"
