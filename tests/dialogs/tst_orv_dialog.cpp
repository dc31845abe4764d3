#include <dax_translation.h>
#include <orv_date_time_edit.h>
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
    QLineEdit *edit = new QLineEdit(this), *readOnlyEdit = new QLineEdit(this), *constEdit = new QLineEdit(this);
    QDateTimeEdit* dateTime = new QDateTimeEdit(this);
    QComboBox *combo = new QComboBox(this), *disabledCombo = new QComboBox(this);
    QCheckBox* check = new QCheckBox(this);
    QSpinBox* spin = new QSpinBox(this);
    QDoubleSpinBox* doubleSpin = new QDoubleSpinBox(this);
    QSlider* slider = new QSlider(this);
    QPlainTextEdit* plain = new QPlainTextEdit(this);
    QTextEdit* text = new QTextEdit(this);
    QPushButton *toggle = new QPushButton("toggle", this), *button = new QPushButton("act", this);
    QTableWidget* table = new QTableWidget(2, 2, this);
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

// A text edit page filled before it is shown (filling a shown page counts as an edit).
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

using OrvTest::visibleButtons;

const QString kSatisfied = QString::fromUtf8("\u2022 %1");
const QString kFailed = QString::fromUtf8("<span style=\"color:#aa0000;\">\u2022 %1</span>");

using PageEdit = std::function<void(Page*)>;
} // namespace

Q_DECLARE_METATYPE(PageEdit)

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
        QTest::newRow("OkApplyCancel") << int(OkApplyCancel) << true
                                       << QStringList{"_pbChanges", "pbApply", "pbClose", "pbOk"} << "Cancel";
        QTest::newRow("OkCancel") << int(OkCancel) << true << QStringList{"_pbChanges", "pbClose", "pbOk"} << "Cancel";
        QTest::newRow("CloseOnly") << int(CloseOnly) << true << QStringList{"_pbChanges", "pbClose"} << "Close";
        QTest::newRow("unclosable") << int(OkApplyCancel) << false << QStringList{"_pbChanges", "pbApply"} << "Cancel";
        QTest::newRow("SeamlessDialog") << int(SeamlessDialog) << true << QStringList() << "Close";
    }
    void construction()
    {
        QFETCH(int, combination);
        QFETCH(bool, closable);
        QFETCH(QStringList, visible);
        Opened o(ButtonCombination(combination), closable);
        OrvDialogButtonBox* box = o.page->box();
        QCOMPARE(box->isVisibleTo(o.frame) ? visibleButtons(box) : QStringList(), visible);
        QTEST(box->getButton(Close)->text(), "closeText");
        QVERIFY(!box->isButtonEnabled(Ok) && !box->isButtonEnabled(Apply));
    }

    void editMarksPageChanged_data()
    {
        QTest::addColumn<PageEdit>("edit");
        QTest::addColumn<bool>("changes");
        QTest::newRow("lineEdit") << PageEdit([](Page* p) { p->edit->setText("x"); }) << true;
        QTest::newRow("dateTimeEdit") << PageEdit([](Page* p) { p->dateTime->setDate(QDate(2030, 1, 1)); }) << true;
        QTest::newRow("comboBox") << PageEdit([](Page* p) { p->combo->setCurrentIndex(1); }) << true;
        QTest::newRow("checkBox") << PageEdit([](Page* p) { p->check->click(); }) << true;
        QTest::newRow("spinBox") << PageEdit([](Page* p) { p->spin->setValue(3); }) << true;
        QTest::newRow("doubleSpinBox") << PageEdit([](Page* p) { p->doubleSpin->setValue(2.5); }) << true;
        QTest::newRow("slider") << PageEdit([](Page* p) { p->slider->setValue(7); }) << true;
        QTest::newRow("plainTextEdit") << PageEdit([](Page* p) { p->plain->setPlainText("x"); }) << true;
        QTest::newRow("textEdit") << PageEdit([](Page* p) { p->text->setPlainText("x"); }) << true;
        QTest::newRow("toggleButton") << PageEdit([](Page* p) { p->toggle->click(); }) << true;
        QTest::newRow("orvDateTimeEdit") << PageEdit([](Page* p) { p->orvDateTime->setMsecsSinceEpoch(1800000000000); })
                                         << true;
        QTest::newRow("const") << PageEdit([](Page* p) { p->constEdit->setText("x"); }) << false;
        QTest::newRow("insideConst") << PageEdit([](Page* p) { p->constGroup->findChild<QLineEdit*>()->setText("x"); })
                                     << false;
        QTest::newRow("plainButton") << PageEdit([](Page* p) { p->button->click(); }) << false;
    }
    void editMarksPageChanged()
    {
        QFETCH(PageEdit, edit);
        QFETCH(bool, changes);
        Page* page = new Page;
        QScopedPointer<OrvDialogHelper> frame(page->getHelper());
        page->doubleSpin->setValue(9.5); // before the first show: not tracked
        QVERIFY(!page->hasUnsavedChanges());
        frame->show();
        QSignalSpy spy(page, &OrvDialog::signalChangesMade);
        edit(page);
        QCOMPARE(page->hasUnsavedChanges(), changes);
        QCOMPARE(spy.isEmpty(), !changes);
        const QString title = changes ? QString::fromUtf8("\u2022Page") : QString("Page");
        QCOMPARE(frame->windowTitle(), title);
        QCOMPARE(page->QWidget::windowTitle(), title);
        QCOMPARE(page->windowTitle(), QString("Page"));
        QCOMPARE((QList<bool>{page->box()->isButtonEnabled(Ok), page->box()->isButtonEnabled(Apply)}),
                 QList<bool>(2, changes));

        page->retranslateTouchesEdit = true; // re-set texts fire change signals: no change either way
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(frame.data(), &event);
        QCOMPARE(page->retranslations, 2);
        QCOMPARE(page->hasUnsavedChanges(), changes);
        QCOMPARE(page->box()->getButton(Close)->text(), QString("Cancel"));
    }

    // Apply checks the requirements, then asks the page; Close on a changed page asks what to do.
    void applyAndCloseFlow()
    {
        Opened o;
        Page* page = o.page;
        page->requirements()->addRequirement(
            UiRequirement(page->label, [page] { return !page->edit->text().isEmpty(); }, "fill me"));
        page->spin->setValue(4);
        QSignalSpy reset(page, &OrvDialog::signalChangesReset);
        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        page->box()->getButton(Apply)->click();
        QCOMPARE(answerer.texts(), QStringList("<b>Operation not complete</b><br><br>There are elements that have "
                                               "invalid or no value.<br>Please change values in the elements which "
                                               "are marked with red text."));
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

        page->spin->setValue(5); // closing a changed page asks first
        answerer.escape().click("Apply");
        page->box()->getButton(Close)->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(o.frame && page->hasUnsavedChanges());
        page->box()->getButton(Close)->click();
        QCOMPARE(answerer.buttons().last(), QStringList({"Apply", "Discard", "Cancel"}));
        QCOMPARE(page->applies, 3);
        QTRY_VERIFY(!o.frame);
    }

    void frameDeletesOnlyAPageStillInside_data()
    {
        QTest::addColumn<bool>("takenOut");
        QTest::newRow("inside") << false;
        QTest::newRow("taken out") << true;
    }
    void frameDeletesOnlyAPageStillInside()
    {
        QFETCH(bool, takenOut);
        QWidget elsewhere;
        auto* frame = new Opened;
        QPointer<Page> page = frame->page;
        if (takenOut)
            page->setParent(&elsewhere);
        delete frame;
        QCOMPARE(page.isNull(), !takenOut);
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
        QVERIFY(page->unchangeable() && readOnly->isVisible());
        QCOMPARE(readOnly->toolTip(), QString("Locked by: X"));
        QVERIFY(page->edit->isReadOnly() && page->readOnlyEdit->isReadOnly() && page->spin->isReadOnly());
        QVERIFY(page->dateTime->isReadOnly() && page->plain->isReadOnly());
        for (QWidget* w : std::initializer_list<QWidget*>{page->combo, page->check, page->slider, page->table, page->button})
            QVERIFY(!w->isEnabled());
        page->slotChangesMade();
        page->spin->setValue(9);
        // Changed before the lock, but nothing may be applied while another party holds it.
        QVERIFY(!page->box()->getButton(Ok)->isEnabled() && !page->box()->getButton(Apply)->isEnabled());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("_apply refused: topic locked by X"));
        QMetaObject::invokeMethod(page, "slotApply"); // a caller or shortcut that ignores the buttons
        QCOMPARE(page->applies, 0);
        QVERIFY(page->hasUnsavedChanges());

        OrvTest::DialogAnswerer answerer;
        answerer.click("Ok");
        readOnly->click();
        QCOMPARE(answerer.texts(), QStringList("Locked by: X"));

        page->slotUnlock();
        QVERIFY(page->box()->getButton(Ok)->isEnabled() && page->box()->getButton(Apply)->isEnabled());
        QVERIFY(!page->unchangeable() && !readOnly->isVisible());
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

        QTest::ignoreMessage(QtDebugMsg, "OrvDialog::tryLockTopicNew topicName='T' change from 1 to 2");
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("entity =2, signalLockTopic isConnected=true$"));
        page->tryLockTopicNew("T", 2); // another entity asks again
        QCOMPARE(requests.size(), 2);
        QCOMPARE(requests.at(1).entityId(), 2);
    }

    // The frame keeps its first page, tracks its size, veils it with an overlay and goes with the page.
    void frameAndOverlay()
    {
        const int pages = OrvDialog::objectCount();
        Opened o;
        Page other;
        QCOMPARE(OrvDialog::objectCount(), pages + 2);
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
        delete o.page.data(); // the frame goes with its page; the overlay widget stays with its owner
        QTRY_VERIFY(!o.frame);
        QCOMPARE(OrvDialog::objectCount(), pages + 1);
        QVERIFY(first && !first->parent());
        delete first.data();
    }

    void deletePageDuringQuestion_data()
    {
        QTest::addColumn<bool>("viaApply");
        QTest::addColumn<bool>("deleteFrame");
        for (bool viaApply : {false, true})
            for (bool frame : {false, true})
                QTest::addRow("%s, %s", viaApply ? "apply" : "close", frame ? "frame" : "page") << viaApply << frame;
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
        answerer.inspect([&](QWidget*) { deleteFrame ? delete o.frame.data() : delete o.page.data(); });
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

    void shellForwardingAndHelp()
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

        QSignalSpy help(o.page.data(), &OrvDialog::signalShowOnlineHelp);
        o.page->setOnlineHelpFilename("page.html");
        o.page->setOnlineHelpFilename("page.html"); // one connection only
        o.page->box()->getButton(Help)->click();
        QCOMPARE(help, QList<QVariantList>{{QString("page.html")}});
    }

    void requirements()
    {
        QWidget page;
        QLabel *name = new QLabel("Name", &page), *size = new QLabel("Size", &page);
        QLabel *hidden = new QLabel("Hidden", &page), *checked = new QLabel("Checked", &page);
        hidden->hide(); // hidden labels count only when asked to
        checked->hide();
        checked->setProperty("checkMe", true);
        name->setToolTip("your name");
        page.show();
        bool nameOk = false, sizeOk = false;
        OrvTest::DialogAnswerer answerer;
        UiRequirementList list;
        QVERIFY(list.checkRequirements(&page));
        list.addRequirement(UiRequirement(name, [&] { return nameOk; }, "enter a name"));
        list.addRequirement(UiRequirement(size, [&] { return sizeOk; }, QString()));
        for (QLabel* l : {hidden, checked})
            list.addRequirement(UiRequirement(l, [] { return false; }, QString()));
        list.addRequirement(UiRequirement());
        list.retranslate(); // still decorated: nothing new to take
        QCOMPARE(name->text(), kSatisfied.arg("Name"));
        size->setToolTip("own tip");
        size->setCursor(Qt::IBeamCursor);

        answerer.click("Ok");
        QVERIFY(!list.checkRequirements(&page));
        QCOMPARE(answerer.answered(), 1); // one message for all failures
        QCOMPARE(name->text(), kFailed.arg("Name"));
        QCOMPARE(name->toolTip(), QString("enter a name"));
        QCOMPARE(name->cursor().shape(), Qt::WhatsThisCursor);
        QCOMPARE(size->text(), kFailed.arg("Size"));
        QCOMPARE(size->toolTip(), QString("own tip")); // no warning message: tooltip and cursor untouched
        QCOMPARE(size->cursor().shape(), Qt::IBeamCursor);
        QCOMPARE(hidden->text(), kSatisfied.arg("Hidden"));
        QCOMPARE(checked->text(), kFailed.arg("Checked"));
        list.retranslate(); // the red form is ours, not a translation
        QCOMPARE(size->text(), kFailed.arg("Size"));
        size->setText("Taille");
        name->setText("Nom"); // a new language while the warning shows: the label keeps its own tooltip
        list.retranslate();
        QCOMPARE(size->text(), kFailed.arg("Taille"));
        QCOMPARE(name->toolTip(), QString("enter a name"));

        nameOk = true;
        QVERIFY(!list.checkRequirements(nullptr)); // marks, but asks nobody
        QCOMPARE(name->text(), kSatisfied.arg("Nom"));
        QCOMPARE(name->toolTip(), QString("your name"));
        QCOMPARE(name->cursor().shape(), Qt::ArrowCursor);
        sizeOk = true;
        delete checked; // a deleted label drops out of the checks
        QVERIFY(list.checkRequirements(&page));
        QCOMPARE(size->text(), kSatisfied.arg("Taille"));
        list.retranslate();
        list.clear();
        QCOMPARE(name->text(), QString("Nom"));
        QCOMPARE(size->text(), QString("Taille"));
        QCOMPARE(answerer.answered(), 1);
    }

    // Changing only the colour makes the page appliable; applying sends the HTML
    // as it is and with the colour placed in the body style, not in the text's own.
    void textEditBackgroundColorApply()
    {
        TextPage o("<p><span style=\"font-family:'Serif';\">text</span></p>");
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

    // Typed text is reported; Ok applies it, Discard cancels while the page is still open. Either closes.
    void textEditOkOrDiscard_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::newRow("ok") << true;
        QTest::newRow("discard") << false;
    }
    void textEditOkOrDiscard()
    {
        QFETCH(bool, ok);
        TextPage o;
        QSignalSpy changed(o.page, &OrvTextEditDialog::signalTextChanged);
        QSignalSpy applied(o.page, &OrvTextEditDialog::signalTextApplied);
        QList<bool> openWhenCanceled;
        connect(o.page, &OrvTextEditDialog::signalDialogCanceled, this,
                [&] { openWhenCanceled << (o.frame && o.frame->isVisible()); });
        QTest::keyClicks(o.editor->textEdit(), "ab");
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().at(0).toString(), o.page->getHtmlText());
        OrvTest::DialogAnswerer answerer;
        answerer.click("Discard");
        ok ? o.button(Ok)->click() : o.page->closeRequest();
        QCOMPARE(answerer.answered(), ok ? 0 : 1);
        QCOMPARE(applied.count(), ok ? 1 : 0);
        QVERIFY(!ok || applied.at(0).at(0).toString().contains(">ab<"));
        QCOMPARE(openWhenCanceled, ok ? QList<bool>() : QList<bool>{true});
        QTRY_VERIFY(!o.frame);
    }

    // Each value names its own button. A live switch translates every button and the library menu
    // but keeps texts the owner set.
    void buttonBoxButtonsAndLanguageSwitch()
    {
        OrvDialogButtonBox box;
        box.setText(Close, "Cancel");
        box.getButton(Add)->setText("stale");
        QSet<QPushButton*> seen;
        QStringList english;
        for (int value = ReadOnly; value <= _debug_; ++value) {
            QPushButton* b = box.getButton(DialogButton(value));
            QVERIFY(b);
            seen.insert(b);
            english << b->text();
            QCOMPARE(b->shortcut(), value == Close ? QKeySequence("Ctrl+W") : QKeySequence());
        }
        QCOMPARE(seen.size(), 21);
        const auto actions = box.getButton(Library)->menu()->actions();
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions.at(0)->text() + actions.at(1)->text(), QString("LoadSave"));
        QSignalSpy load(&box, &OrvDialogButtonBox::signalLibraryLoadClicked);
        QSignalSpy save(&box, &OrvDialogButtonBox::signalLibrarySaveClicked);
        actions.at(1)->trigger();
        QCOMPARE(load.count() * 10 + save.count(), 1);

        const auto restore = qScopeGuard([] {
            Dax::setTranslationLocale("en_GB", "orv-tests");
            QCoreApplication::processEvents();
        });
        Dax::setTranslationLocale("de_DE", "orv-tests");
        QCoreApplication::processEvents();
        for (int value = ReadOnly; value <= _debug_; ++value) {
            const QString text = box.getButton(DialogButton(value))->text();
            const bool same = value == Ok || value == Help || value == _debug_ || value == Close;
            QVERIFY2(same == (text == english.at(value)), qPrintable(text));
        }
        QCOMPARE(box.getButton(Close)->text(), QString("Cancel"));
        QCOMPARE(box.getButton(Close)->shortcut(), QKeySequence("Ctrl+W"));
        QCOMPARE(box.getButton(Add)->text(), QString("Hinzufügen"));
        QCOMPARE(actions.at(0)->text() + actions.at(1)->text(), QString("LadenSpeichern"));
    }

    void buttonBoxVisibility_data()
    {
        QTest::addColumn<bool>("tablet");
        QTest::newRow("desktop") << false;
        QTest::newRow("tablet") << true; // never shows Print, decided when the box is made
    }
    // A new box shows OK and Close. An unknown value names no button: changing it does nothing,
    // not even the STOP message.
    void buttonBoxVisibility()
    {
        QFETCH(bool, tablet);
        OrvSessionData::OrvSessionData::getInstance()->setTablet(tablet);
        OrvDialogButtonBox box;
        OrvSessionData::OrvSessionData::getInstance()->setTablet(false);
        const auto unknown = DialogButton(99);
        OrvTest::DialogAnswerer answerer;
        box.setButtonVisible(unknown, true);
        box.setButtonEnabled(unknown, true);
        box.setText(unknown, "x");
        QVERIFY(!box.isButtonVisible(unknown) && !box.isButtonEnabled(unknown));
        QCOMPARE(answerer.answered(), 0);
        QCOMPARE(visibleButtons(&box), QStringList({"pbClose", "pbOk"}));
        QVERIFY(!box.isButtonVisible(Ok)); // the box itself is not shown yet
        box.show();
        QVERIFY(box.isButtonVisible(Ok));
        box.setButtonVisible(Print, true);
        QCOMPARE(box.getButton(Print)->isVisibleTo(&box), !tablet);
    }

    // OK, Apply and Close follow the page's change state: switching them from outside is a defect to
    // report. Remove asks first and tells only on Yes.
    void buttonBoxQuestions()
    {
        OrvDialogButtonBox box;
        OrvTest::DialogAnswerer answerer;
        int asked = 0;
        for (DialogButton value : {Ok, Apply, Close, Add}) {
            box.getButton(value)->setEnabled(false);
            if (value != Add)
                answerer.click("Ok"), ++asked;
            box.setButtonEnabled(value, true);
            QCOMPARE(answerer.answered(), asked);
            QVERIFY(box.isButtonEnabled(value));
        }
        QVERIFY(answerer.texts().first().startsWith("<b>>>> STOP <<<</b><br><br>Hier stimmt etwas nicht."));
        QCOMPARE(answerer.buttons().first(), QStringList("Ok"));

        QSignalSpy removed(&box, &OrvDialogButtonBox::signalRemoveClicked);
        answerer.click("No").escape().click("Yes");
        for (int emitted : {0, 0, 1}) {
            QVERIFY(QMetaObject::invokeMethod(&box, "slotRemoveClicked"));
            QCOMPARE(removed.count(), emitted);
        }
        QCOMPARE(answerer.buttons().mid(3), QList<QStringList>(3, QStringList({"Yes", "No"})));
        QVERIFY(answerer.texts().last().contains("Are you sure you want to delete the selected entry(ies)?"));
    }
};

QTEST_MAIN(TestOrvDialog)
#include "tst_orv_dialog.moc"
