#include <orv_test_support.h>
#include <requirement_widget.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace {
const QString kSatisfied = QString::fromUtf8("\u2022 %1");
const QString kFailed = QString::fromUtf8("<span style=\"color:#aa0000;\">\u2022 %1</span>");
} // namespace

class TestRequirements : public QObject
{
    Q_OBJECT
private:
    QWidget m_page;
    QLabel* label(const QString& text, const QString& toolTip = QString())
    {
        auto* l = new QLabel(text, &m_page);
        l->setToolTip(toolTip);
        l->show();
        return l;
    }

private Q_SLOTS:
    void init() { m_page.show(); }
    void cleanup() { qDeleteAll(m_page.findChildren<QLabel*>()); }

    void decorationAndSummary()
    {
        QLabel* name = label("Name", "your name");
        QLabel* size = label("Size");
        QLabel* ok = label("Ok");
        bool nameOk = false;
        UiRequirementList list;
        list.addRequirement(UiRequirement(name, [&] { return nameOk; }, "enter a name"));
        list.addRequirement(UiRequirement(size, [] { return false; }, QString()));
        list.addRequirement(UiRequirement(ok, [] { return true; }, "never shown"));
        list.addRequirement(UiRequirement());
        QCOMPARE(name->text(), kSatisfied.arg("Name"));
        size->setToolTip("own tip");
        size->setCursor(Qt::IBeamCursor);

        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        QVERIFY(!list.checkRequirements(&m_page));
        QCOMPARE(answerer.answered(), 1); // one message for both failures
        QVERIFY(answerer.texts().first().startsWith("<b>Operation not complete</b>"));
        QCOMPARE(name->text(), kFailed.arg("Name"));
        QCOMPARE(name->toolTip(), QString("enter a name"));
        QCOMPARE(name->cursor().shape(), Qt::WhatsThisCursor);
        QCOMPARE(size->text(), kFailed.arg("Size"));
        QCOMPARE(size->toolTip(), QString("own tip")); // no warning message: tooltip and cursor untouched
        QCOMPARE(size->cursor().shape(), Qt::IBeamCursor);
        QCOMPARE(ok->text(), kSatisfied.arg("Ok"));

        nameOk = true;
        QVERIFY(!list.checkRequirements(nullptr)); // marks, but asks nobody
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(name->text(), kSatisfied.arg("Name"));
        QCOMPARE(name->toolTip(), QString("your name"));
        QCOMPARE(name->cursor().shape(), Qt::ArrowCursor);

        list.clear();
        QCOMPARE(name->text(), QString("Name"));
        QCOMPARE(size->text(), QString("Size"));
        delete size; // the page may delete labels once their requirements are cleared
        QVERIFY(list.checkRequirements(&m_page));
    }

    void hiddenLabel_data()
    {
        QTest::addColumn<bool>("checkMe");
        QTest::newRow("hidden") << false;
        QTest::newRow("hidden, checkMe") << true;
    }
    void hiddenLabel()
    {
        QFETCH(bool, checkMe);
        QLabel* l = label("Hidden");
        l->hide();
        if (checkMe)
            l->setProperty("checkMe", true);
        UiRequirementList list;
        list.addRequirement(UiRequirement(l, [] { return false; }, QString()));
        QCOMPARE(list.checkRequirements(nullptr), !checkMe);
        QCOMPARE(l->text(), checkMe ? kFailed.arg("Hidden") : kSatisfied.arg("Hidden"));
    }

    void retranslateTakesFreshText()
    {
        QLabel* l = label("Name");
        bool pass = false;
        UiRequirementList list;
        list.addRequirement(UiRequirement(l, [&] { return pass; }, QString()));
        list.retranslate(); // still decorated: nothing new to take
        QCOMPARE(l->text(), kSatisfied.arg("Name"));
        list.checkRequirements(nullptr);
        list.retranslate(); // the red form is ours, not a translation
        QCOMPARE(l->text(), kFailed.arg("Name"));
        l->setText("Nom");
        list.retranslate();
        QCOMPARE(l->text(), kFailed.arg("Nom"));
        pass = true;
        QVERIFY(list.checkRequirements(nullptr));
        QCOMPARE(l->text(), kSatisfied.arg("Nom"));
    }

    void emptyListAndDeletedLabel()
    {
        OrvTest::DialogAnswerer answerer;
        UiRequirementList empty;
        QVERIFY(empty.checkRequirements(&m_page));
        QLabel* l = label("Gone");
        UiRequirement requirement(l, [] { return false; }, QString());
        UiRequirementList list;
        list.addRequirement(requirement);
        delete l;
        QVERIFY(!requirement.isValid());
        QVERIFY(list.checkRequirements(&m_page));
        list.retranslate();
        list.clear();
        QCOMPARE(answerer.answered(), 0);
    }
};

QTEST_MAIN(TestRequirements)
#include "tst_requirements.moc"
