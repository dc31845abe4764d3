#include <orv_dialog.h>
#include <orv_dialog_button_box.h>
#include <orv_dialog_helper.h>
#include <orv_session_data.h>
#include <orv_test_support.h>
#include <orv_text_edit_dialog.h>
#include <orv_text_editor2.h>
#include <requirement_widget.h>

#include <orv_test_widgets.h>

#include <QtTest>
#include <QtWidgets>

using namespace OrvWidgets;

namespace OrvWidgets {
namespace {
// Stands in for the date-time edit of the editors library, which pages reach
// only by class name and signal signature.
class OrvDateTimeEdit : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;
Q_SIGNALS:
    void dateTimeChanged();
};
} // namespace
} // namespace OrvWidgets

namespace {
// Stands in for the shell: the page reaches these by name only.
class FakeShell : public QWidget
{
    Q_OBJECT
public:
    Q_INVOKABLE bool addWidget(OrvWidgets::OrvDialog* dialog, const QString& menuGroup, const QString& identifier,
                               OrvWidgets::LayoutArea area, bool closable, bool focus)
    {
        calls << QVariantList{QVariant::fromValue<QObject*>(dialog), menuGroup, identifier, int(area), closable, focus};
        return true;
    }
    Q_INVOKABLE bool focusTab(const QString& menuGroup, const QString& identifier, OrvWidgets::LayoutArea area)
    {
        calls << QVariantList{menuGroup, identifier, int(area)};
        return false;
    }
    Q_INVOKABLE bool isDialogFocused(const OrvWidgets::OrvDialog* dialog) const { return dialog == focused; }
    QList<QVariantList> calls;
    const OrvDialog* focused = nullptr;
};

class Page : public OrvDialog
{
    Q_OBJECT
public:
    explicit Page(ButtonCombination buttons = OkApplyCancel, bool closable = true)
        : OrvDialog(nullptr, buttons, closable)
    {
        auto* layout = new QVBoxLayout(this);
        readOnlyEdit->setReadOnly(true);
        combo->addItems({"a", "b"});
        disabledCombo->setEnabled(false);
        toggle->setCheckable(true);
        constEdit->setProperty("const", true);
        constGroup->setProperty("const", true);
        new QLineEdit(constGroup);
        for (QWidget* w : std::initializer_list<QWidget*>{label, edit, readOnlyEdit, dateTime, combo, disabledCombo,
                                                          check, spin, doubleSpin, slider, plain, text, toggle, button,
                                                          table, constEdit, constGroup, orvDateTime})
            layout->addWidget(w);
        retranslate();
    }
    void retranslate() override
    {
        translate("Page");
        ++retranslations;
        if (retranslateTouchesEdit)
            edit->setText(edit->text() + "!");
    }
    bool apply() override { return ++applies, applyResult; }
    void dialogCanceled() override { ++canceled; }
    OrvDialogButtonBox* box() const { return m_buttonBox; }
    UiRequirementList* requirements() const { return m_uiRequirements; }

    QLabel* label = new QLabel("Name", this);
    QLineEdit* edit = new QLineEdit(this);
    QLineEdit* readOnlyEdit = new QLineEdit(this);
    QDateTimeEdit* dateTime = new QDateTimeEdit(this);
    QComboBox* combo = new QComboBox(this);
    QComboBox* disabledCombo = new QComboBox(this);
    QCheckBox* check = new QCheckBox(this);
    QSpinBox* spin = new QSpinBox(this);
    QDoubleSpinBox* doubleSpin = new QDoubleSpinBox(this);
    QSlider* slider = new QSlider(this);
    QPlainTextEdit* plain = new QPlainTextEdit(this);
    QTextEdit* text = new QTextEdit(this);
    QPushButton* toggle = new QPushButton("toggle", this);
    QPushButton* button = new QPushButton("act", this);
    QTableWidget* table = new QTableWidget(2, 2, this);
    QLineEdit* constEdit = new QLineEdit(this);
    QGroupBox* constGroup = new QGroupBox(this);
    OrvDateTimeEdit* orvDateTime = new OrvDateTimeEdit(this);
    int retranslations = 0, applies = 0, canceled = 0;
    bool applyResult = true, retranslateTouchesEdit = false;
};

// A shown page in its frame; the frame (and with it the page) goes at scope end.
struct Opened
{
    explicit Opened(ButtonCombination buttons = OkApplyCancel, bool closable = true)
        : page(new Page(buttons, closable))
        , frame(page->getHelper())
    {
        frame->resize(800, 900);
        frame->show();
    }
    ~Opened() { delete frame.data(); }
    QPointer<Page> page;
    QPointer<OrvDialogHelper> frame;
};

using OrvTest::visibleButtons;

const QString kSatisfied = QString::fromUtf8("\u2022 %1");
const QString kFailed = QString::fromUtf8("<span style=\"color:#aa0000;\">\u2022 %1</span>");

// A text edit page filled before it is shown (filling a shown page counts as an
// edit); the frame, and with it the page, goes at scope end.
struct TextPage
{
    explicit TextPage(const QString& html = QString())
    {
        page->setHtml(html);
        frame->show();
    }
    ~TextPage() { delete frame.data(); }
    QPushButton* button(DialogButton which) const { return frame->getButtonBox()->getButton(which); }
    QPointer<OrvTextEditDialog> page = new OrvTextEditDialog;
    QPointer<OrvDialogHelper> frame = page->getHelper();
    OrvTextEditor2* editor = page->findChild<OrvTextEditor2*>();
};

// A shown plain widget holding the labels of the requirement tests.
struct LabelPage : QWidget
{
    LabelPage() { show(); }
    QLabel* label(const QString& text, const QString& toolTip = QString())
    {
        auto* l = new QLabel(text, this);
        l->setToolTip(toolTip);
        l->show();
        return l;
    }
};

void edit(Page* p, const QString& widget)
{
    if (widget == "lineEdit") p->edit->setText("x");
    else if (widget == "dateTimeEdit") p->dateTime->setDateTime(p->dateTime->dateTime().addDays(1));
    else if (widget == "comboBox") p->combo->setCurrentIndex(1);
    else if (widget == "checkBox") p->check->click();
    else if (widget == "spinBox") p->spin->setValue(3);
    else if (widget == "doubleSpinBox") p->doubleSpin->setValue(2.5);
    else if (widget == "slider") p->slider->setValue(7);
    else if (widget == "plainTextEdit") p->plain->setPlainText("x");
    else if (widget == "textEdit") p->text->setPlainText("x");
    else if (widget == "toggleButton") p->toggle->click();
    else if (widget == "orvDateTimeEdit") Q_EMIT p->orvDateTime->dateTimeChanged();
    else if (widget == "const") p->constEdit->setText("x");
    else if (widget == "insideConst") p->constGroup->findChild<QLineEdit*>()->setText("x");
    else if (widget == "plainButton") p->button->click();
}
} // namespace

class TestOrvDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("qt.svg.warning=false"); } // icons are not our concern

    void construction_data()
    {
        QTest::addColumn<int>("combination");
        QTest::addColumn<bool>("closable");
        QTest::addColumn<QStringList>("visible");
        QTest::addColumn<QString>("closeText");
        QTest::addColumn<bool>("unchangeable");
        QTest::newRow("OkApplyCancel") << int(OkApplyCancel) << true
                                       << QStringList{"_pbChanges", "pbApply", "pbClose", "pbOk"} << "Cancel" << false;
        QTest::newRow("OkCancel") << int(OkCancel) << true << QStringList{"_pbChanges", "pbClose", "pbOk"} << "Cancel"
                                  << false;
        QTest::newRow("CloseOnly") << int(CloseOnly) << true << QStringList{"_pbChanges", "pbClose"} << "Close" << true;
        QTest::newRow("unclosable") << int(OkApplyCancel) << false << QStringList{"_pbChanges", "pbApply"} << "Cancel"
                                    << false;
        QTest::newRow("SeamlessDialog") << int(SeamlessDialog) << true << QStringList() << "Close" << false;
    }
    void construction()
    {
        QFETCH(int, combination);
        QFETCH(bool, closable);
        QFETCH(QStringList, visible);
        QFETCH(QString, closeText);
        QFETCH(bool, unchangeable);
        Opened o(ButtonCombination(combination), closable);
        OrvDialogButtonBox* box = o.page->box();
        QCOMPARE(box->isVisibleTo(o.frame), combination != SeamlessDialog);
        if (combination != SeamlessDialog)
            QCOMPARE(visibleButtons(box), visible);
        QCOMPARE(box->getButton(Close)->text(), closeText);
        QCOMPARE(o.page->unchangeable(), unchangeable);
        QCOMPARE(o.page->isClosable(), closable);
        QVERIFY(!box->isButtonEnabled(Ok));
        QVERIFY(!box->isButtonEnabled(Apply));
        QCOMPARE(o.frame->windowTitle(), QString("Page"));
        QCOMPARE(o.page->parentWidget()->parentWidget(), o.frame->findChild<QScrollArea*>("scrollArea"));
    }

    void editMarksPageChanged_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<bool>("changes");
        for (const char* w : {"lineEdit", "dateTimeEdit", "comboBox", "checkBox", "spinBox", "doubleSpinBox", "slider",
                              "plainTextEdit", "textEdit", "toggleButton", "orvDateTimeEdit"})
            QTest::newRow(w) << QString(w) << true;
        QTest::newRow("const") << "const" << false;
        QTest::newRow("insideConst") << "insideConst" << false;
        QTest::newRow("plainButton") << "plainButton" << false;
    }
    void editMarksPageChanged()
    {
        QFETCH(QString, widget);
        QFETCH(bool, changes);
        Page* page = new Page;
        QScopedPointer<OrvDialogHelper> frame(page->getHelper());
        page->doubleSpin->setValue(9.5); // before the first show: not tracked
        QVERIFY(!page->hasUnsavedChanges());
        frame->show();
        QSignalSpy spy(page, &OrvDialog::signalChangesMade);
        edit(page, widget);
        QCOMPARE(page->hasUnsavedChanges(), changes);
        QCOMPARE(spy.isEmpty(), !changes);
        const QString title = changes ? QString::fromUtf8("\u2022Page") : QString("Page");
        QCOMPARE(frame->windowTitle(), title);
        QCOMPARE(page->QWidget::windowTitle(), title);
        QCOMPARE(page->windowTitle(), QString("Page"));
        QCOMPARE(page->box()->isButtonEnabled(Ok), changes);
        QCOMPARE(page->box()->isButtonEnabled(Apply), changes);
    }

    void applyFlow()
    {
        Opened o;
        Page* page = o.page;
        page->requirements()->addRequirement(UiRequirement(page->label, [page] { return !page->edit->text().isEmpty(); }, "fill me"));
        page->spin->setValue(4);
        QSignalSpy reset(page, &OrvDialog::signalChangesReset);
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        page->box()->getButton(Apply)->click();
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(answerer.texts().first(),
                 QString("<b>Operation not complete</b><br><br>There are elements that have invalid or no "
                         "value.<br>Please change values in the elements which are marked with red text."));
        QCOMPARE(page->applies, 0);
        QVERIFY(page->hasUnsavedChanges());
        QCOMPARE(page->label->text(), kFailed.arg("Name"));

        page->edit->setText("filled");
        page->applyResult = false; // the page refuses: it stays changed and open
        page->box()->getButton(Ok)->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(o.frame && page->hasUnsavedChanges());
        QCOMPARE(page->applies, 1);

        page->applyResult = true;
        page->box()->getButton(Apply)->click();
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(page->applies, 2);
        QVERIFY(!page->hasUnsavedChanges());
        QCOMPARE(reset.count(), 1);
        QCOMPARE(o.frame->windowTitle(), QString("Page"));
        QCOMPARE(page->label->text(), kSatisfied.arg("Name"));
        QVERIFY(!page->box()->isButtonEnabled(Ok));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(o.frame && o.frame->isVisible()); // Apply does not close
    }

    void closeChangedPage_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<int>("applies");
        QTest::addColumn<int>("canceled");
        QTest::newRow("apply") << "Apply" << true << 1 << 0;
        QTest::newRow("discard") << "Discard" << true << 0 << 1;
        QTest::newRow("cancel") << "Cancel" << false << 0 << 0;
        QTest::newRow("escape") << "" << false << 0 << 0;
    }
    void closeChangedPage()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(int, applies);
        QFETCH(int, canceled);
        Opened o;
        o.page->edit->setText("x");
        OrvTest::DialogAnswerer answerer;
        answer.isEmpty() ? answerer.escape() : answerer.click(answer);
        o.page->box()->getButton(Close)->click();
        QCOMPARE(answerer.answered(), 1);
        QCOMPARE(answerer.buttons().first(), QStringList({"Apply", "Discard", "Cancel"}));
        QCOMPARE(o.page->applies, applies);
        QCOMPARE(o.page->canceled, canceled);
        QCOMPARE(o.page->hasUnsavedChanges(), !closed);
        if (closed) {
            QTRY_VERIFY(!o.frame);
        } else {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(o.frame && o.frame->isVisible());
        }
    }

    void lockAndUnlock()
    {
        Opened o;
        Page* page = o.page;
        page->edit->setText("x");
        page->slotLock("Y");
        page->slotLock("X"); // a second holder must not overwrite the state saved by the first lock
        QCOMPARE(o.frame->windowTitle(), QString::fromUtf8("\u2022Page - READ-ONLY (X)"));
        QPushButton* readOnly = page->box()->getButton(ReadOnly);
        QVERIFY(readOnly->isVisible());
        QCOMPARE(readOnly->toolTip(), QString("Locked by: X"));
        QVERIFY(page->unchangeable());
        for (QLineEdit* e : {page->edit, page->readOnlyEdit})
            QVERIFY(e->isReadOnly());
        QVERIFY(page->spin->isReadOnly() && page->dateTime->isReadOnly() && page->plain->isReadOnly());
        for (QWidget* w : std::initializer_list<QWidget*>{page->combo, page->check, page->slider, page->table, page->button})
            QVERIFY(!w->isEnabled());
        QCOMPARE(page->table->property("lastEnabledState"), QVariant(true)); // handled once, as a table view
        page->slotChangesMade();
        page->spin->setValue(9);

        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        readOnly->click();
        QCOMPARE(answerer.texts().value(0), QString("Locked by: X"));

        page->slotUnlock();
        QVERIFY(!page->unchangeable());
        QVERIFY(!readOnly->isVisible());
        QCOMPARE(o.frame->windowTitle(), QString::fromUtf8("\u2022Page"));
        QVERIFY(!page->edit->isReadOnly() && !page->spin->isReadOnly() && !page->plain->isReadOnly());
        QVERIFY(page->readOnlyEdit->isReadOnly());
        QVERIFY(page->combo->isEnabled() && page->check->isEnabled() && page->table->isEnabled());
        QVERIFY(!page->disabledCombo->isEnabled());
        QVERIFY(!page->button->isEnabled()); // push buttons are the page's to bring back
    }

    void topicLockProtocol()
    {
        Opened o;
        Page* page = o.page;
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopicNew topicName='T' change from 0 to 1");
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopic signalLockTopic(): , TopicName =T, entity =1, "
                                         "signalLockTopic isConnected=false");
        page->tryLockTopicNew("T", 1);
        QVERIFY(page->topicInfo().isValid());
        QVERIFY(!page->topicInfo().isLocked()); // nobody asked: a later trigger may try again

        QList<TopicInfo> requests;
        connect(page, &OrvDialog::signalLockTopic, page, [&](const TopicInfo& info) { requests << info; });
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::triggerTopicLock !!trigger!!");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("isConnected=true$"));
        page->triggerTopicLock();
        QCOMPARE(requests.size(), 1);
        QCOMPARE(requests.at(0).topicName(), QString("T"));
        QVERIFY(page->topicInfo().isLocked());

        QTest::ignoreMessage(QtWarningMsg, "OrvDialog::tryLockTopic tried to lock with an already locked topic info, return");
        page->tryLockTopicNew("T", 1);
        QCOMPARE(requests.size(), 1);

        QLoggingCategory::setFilterRules("qt.svg.warning=false\nOrvWidget.OrvDialog.trace.debug=true");
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopicNew START, topicName='T', entityId=2");
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopicNew topicName='T' change from 1 to 2");
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopic START");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("entity =2, signalLockTopic isConnected=true$"));
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopic END");
        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopicNew END");
        page->tryLockTopicNew("T", 2);
        QLoggingCategory::setFilterRules("qt.svg.warning=false");
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests.at(1).entityId(), 2);
    }

    void overlayReplace()
    {
        Opened o;
        QPointer<QLabel> first = new QLabel("first");
        QPointer<QLabel> second = new QLabel("second");
        o.page->setOverlay(first);
        QPointer<QWidget> veil = first->parentWidget();
        QVERIFY(qobject_cast<OverlayContainer*>(veil));
        QCOMPARE(veil->parentWidget(), o.frame.data());
        QCOMPARE(veil->geometry(), o.frame->rect());
        o.frame->resize(500, 400);
        QCOMPARE(veil->geometry(), QRect(0, 0, 500, 400));

        o.page->setOverlay(second);
        QVERIFY(first && !first->parent() && first->isHidden());
        QTRY_VERIFY(!veil);
        QVERIFY(second->isVisible());
        veil = second->parentWidget();
        delete second.data(); // the veil goes with its widget
        QTRY_VERIFY(!veil);

        o.page->setOverlay(first);
        delete o.frame.data(); // the page goes with its frame; the overlay widget stays with its owner
        QVERIFY(first && !first->parent());
        delete first.data();
    }

    void deletePageDuringQuestion_data()
    {
        QTest::addColumn<bool>("viaApply");
        QTest::addColumn<bool>("deleteFrame");
        QTest::newRow("close question, page") << false << false;
        QTest::newRow("close question, frame") << false << true;
        QTest::newRow("requirements message, page") << true << false;
        QTest::newRow("requirements message, frame") << true << true;
    }
    void deletePageDuringQuestion()
    {
        QFETCH(bool, viaApply);
        QFETCH(bool, deleteFrame);
        Opened o;
        QLabel* overlay = new QLabel("busy");
        o.page->setOverlay(overlay);
        o.page->requirements()->addRequirement(UiRequirement(o.page->label, [] { return false; }, QString()));
        o.page->edit->setText("x");
        OrvTest::DialogAnswerer answerer;
        answerer.inspect([&](QWidget*) {
            if (deleteFrame)
                delete o.frame.data();
            else
                delete o.page.data();
        });
        if (viaApply)
            QMetaObject::invokeMethod(o.page, "slotApply");
        else
            o.page->closeRequest();
        QCOMPARE(answerer.answered(), 1);
        QVERIFY(!o.page);
        QTRY_VERIFY(!o.frame);
        QVERIFY(!overlay->parent());
        delete overlay;
    }

    void closeOnlyNeverChanges()
    {
        Opened o(CloseOnly);
        o.page->edit->setText("x");
        o.page->slotChangesMade();
        o.page->slotLock("X");
        o.page->slotUnlock();
        o.page->slotChangesMade();
        QVERIFY(o.page->unchangeable());
        QVERIFY(!o.page->hasUnsavedChanges());
        OrvTest::DialogAnswerer answerer;
        o.page->box()->getButton(Close)->click();
        QTRY_VERIFY(!o.frame);
        QCOMPARE(answerer.answered(), 0);
    }

    void frameRetranslateKeepsChangeState_data()
    {
        QTest::addColumn<bool>("changed");
        QTest::newRow("unchanged") << false;
        QTest::newRow("changed") << true;
    }
    void frameRetranslateKeepsChangeState()
    {
        QFETCH(bool, changed);
        Opened o;
        if (changed)
            o.page->spin->setValue(5);
        o.page->retranslateTouchesEdit = true; // re-set texts fire change signals
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(o.frame, &event);
        QCOMPARE(o.page->retranslations, 2);
        QCOMPARE(o.page->hasUnsavedChanges(), changed);
        QCOMPARE(o.page->box()->getButton(Close)->text(), QString("Cancel"));
    }

    void frame()
    {
        const int pages = OrvDialog::objectCount();
        Opened o;
        Page other;
        QCOMPARE(OrvDialog::objectCount(), pages + 2);
        QVERIFY(o.frame->testAttribute(Qt::WA_DeleteOnClose));
        o.frame->setDialog(&other); // a frame keeps its first page
        QVERIFY(o.frame->compare(o.page) && !o.frame->compare(&other));

        QSignalSpy sizes(o.frame.data(), &OrvDialogHelper::signalSizeChanged);
        o.page->setMinimumSize(1200, 1200);
        o.frame->resize(300, 300);
        QCOMPARE(sizes.last().first().toSize(), QSize(300, 300));
        QTRY_VERIFY(o.page->layout()->contentsMargins().right() != 0); // a vertical bar is shown
        o.page->setMinimumSize(0, 0);
        o.frame->resize(1600, 1600);
        QTRY_COMPARE(o.page->layout()->contentsMargins(), QMargins());

        delete o.page.data();
        QTRY_VERIFY(!o.frame);
        QCOMPARE(OrvDialog::objectCount(), pages + 1);
    }

    void shellForwarding()
    {
        Opened o;
        QTest::ignoreMessage(QtCriticalMsg, "OrvDialog: addDialog: no base layout set - cannot add Dialog !");
        QTest::ignoreMessage(QtCriticalMsg, "OrvDialog: addDialog: no base layout set - cannot focus Dialog !");
        QTest::ignoreMessage(QtCriticalMsg, "OrvDialog: addDialog: no base layout set - cannot check for focus!");
        QVERIFY(!o.page->addDialog(o.page, "g", "id", eMainTab, true, false));
        QVERIFY(!o.page->focusDialog("g", "id", eMainTab));
        QVERIFY(!o.page->amIFocused());

        FakeShell shell;
        // The page keeps its shell as a plain QWidget; the stand-in is one.
        o.page->setBaseLayoutWidget(reinterpret_cast<OrvBaseLayoutWidget*>(static_cast<QWidget*>(&shell)));
        QVERIFY(o.page->addDialog(o.page, "g", "id", eMainTab, true, false));
        QCOMPARE(shell.calls.last(), (QVariantList{QVariant::fromValue<QObject*>(o.page.data()), "g", "id",
                                                   int(eMainTab), true, false}));
        QVERIFY(!o.page->focusDialog("g", "id", eInfoTab));
        QCOMPARE(shell.calls.last(), (QVariantList{"g", "id", int(eInfoTab)}));
        QVERIFY(!o.page->amIFocused());
        shell.focused = o.page;
        QVERIFY(o.page->amIFocused());
    }

    void onlineHelp()
    {
        Opened o;
        QSignalSpy help(o.page.data(), &OrvDialog::signalShowOnlineHelp);
        o.page->setOnlineHelpFilename("page.html");
        o.page->setOnlineHelpFilename("page.html"); // one connection only
        o.page->box()->getButton(Help)->click();
        QCOMPARE(help, QList<QVariantList>{{QString("page.html")}});
    }

    void requirementsDecorationAndSummary()
    {
        LabelPage page;
        QLabel* name = page.label("Name", "your name");
        QLabel* size = page.label("Size");
        QLabel* ok = page.label("Ok");
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
        QVERIFY(!list.checkRequirements(&page));
        QCOMPARE(answerer.answered(), 1); // one message for both failures
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
        QVERIFY(list.checkRequirements(&page));
    }

    void requirementsHiddenLabel_data()
    {
        QTest::addColumn<bool>("checkMe");
        QTest::newRow("hidden") << false;
        QTest::newRow("hidden, checkMe") << true;
    }
    void requirementsHiddenLabel()
    {
        QFETCH(bool, checkMe);
        LabelPage page;
        QLabel* l = page.label("Hidden");
        l->hide();
        if (checkMe)
            l->setProperty("checkMe", true);
        UiRequirementList list;
        list.addRequirement(UiRequirement(l, [] { return false; }, QString()));
        QCOMPARE(list.checkRequirements(nullptr), !checkMe);
        QCOMPARE(l->text(), checkMe ? kFailed.arg("Hidden") : kSatisfied.arg("Hidden"));
    }

    void requirementsRetranslateTakesFreshText()
    {
        LabelPage page;
        QLabel* l = page.label("Name");
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

    void requirementsEmptyListAndDeletedLabel()
    {
        LabelPage page;
        OrvTest::DialogAnswerer answerer;
        UiRequirementList empty;
        QVERIFY(empty.checkRequirements(&page));
        QLabel* l = page.label("Gone");
        UiRequirement requirement(l, [] { return false; }, QString());
        UiRequirementList list;
        list.addRequirement(requirement);
        delete l;
        QVERIFY(!requirement.isValid());
        QVERIFY(list.checkRequirements(&page));
        list.retranslate();
        list.clear();
        QCOMPARE(answerer.answered(), 0);
    }

    // Changing only the colour makes the page appliable; applying sends the HTML
    // as it is and with the colour placed in the body style.
    void textEditBackgroundColorApply_data()
    {
        QTest::addColumn<QString>("html");
        QTest::newRow("empty document") << QString();
        QTest::newRow("styled text") << "<p><span style=\"font-family:'Serif';\">text</span></p>";
    }
    void textEditBackgroundColorApply()
    {
        QFETCH(QString, html);
        TextPage o(html);
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

    void textEditTypingThenOkAppliesAndCloses()
    {
        TextPage o;
        QSignalSpy changed(o.page, &OrvTextEditDialog::signalTextChanged);
        QSignalSpy applied(o.page, &OrvTextEditDialog::signalTextApplied);
        QTest::keyClicks(o.editor->textEdit(), "ab");
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().at(0).toString(), o.page->getHtmlText());
        o.button(Ok)->click();
        QVERIFY(applied.value(0).value(0).toString().contains(">ab<"));
        QTRY_VERIFY(!o.frame);
    }

    void textEditDiscardCancelsBeforeClosing()
    {
        TextPage o;
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

QTEST_MAIN(TestOrvDialog)
#include "tst_orv_dialog.moc"
