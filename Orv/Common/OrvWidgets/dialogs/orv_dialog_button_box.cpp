#include "orv_dialog_button_box.h"
#include "orv_logging_p.h"

#include "open_questions_p.h"
#include "orv_message_dialog.h"
#include "ui_orv_dialog_button_box.h"

#include <orv_session_data.h>

#include <QEvent>
#include <QIcon>
#include <QKeySequence>
#include <QLoggingCategory>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

namespace OrvWidgets {

OrvDialogButtonBox::OrvDialogButtonBox(QWidget* parent)
    : QWidget(parent)
    , m_isTablet(OrvSessionData::OrvSessionData::getInstance()->isTablet())
    , m_ui(new Ui::OrvDialogButtonBox)
{
    m_ui->setupUi(this);
    _setVisibilityForAll(false);

    m_libraryMenu = new QMenu(this);
    m_libraryMenu->addAction(QIcon(QStringLiteral(":/style/library_load.svg")), tr("Load"), this,
                             &OrvDialogButtonBox::signalLibraryLoadClicked);
    m_libraryMenu->addAction(QIcon(QStringLiteral(":/style/library_save.svg")), tr("Save"), this,
                             &OrvDialogButtonBox::signalLibrarySaveClicked);
    m_ui->pbLibrary->setMenu(m_libraryMenu);

    setButtonsVisible(m_ui->pbOk);
    setButtonsVisible(m_ui->pbClose);
}

OrvDialogButtonBox::~OrvDialogButtonBox()
{
    cancelOpenQuestions(this);
    delete m_ui;
}

QPushButton* OrvDialogButtonBox::button(DialogButton button) const
{
    switch (button) {
    case ReadOnly: return m_ui->pbReadOnly;
    case Ok: return m_ui->pbOk;
    case Apply: return m_ui->pbApply;
    case Close: return m_ui->pbClose;
    case Yes: return m_ui->pbYes;
    case No: return m_ui->pbNo;
    case Remove: return m_ui->pbRemove;
    case Hide: return m_ui->pbHide;
    case Add: return m_ui->pbAdd;
    case Help: return m_ui->pbHelp;
    case Edit: return m_ui->pbEdit;
    case Save: return m_ui->pbSave;
    case Load: return m_ui->pbLoad;
    case Show: return m_ui->pbShow;
    case Import: return m_ui->pbImport;
    case Export: return m_ui->pbExport;
    case CenterMap: return m_ui->pbCenterMap;
    case ZoomMapTo: return m_ui->pbZoomMapTo;
    case Library: return m_ui->pbLibrary;
    case Print: return m_ui->pbPrint;
    case _debug_: return m_ui->_pbChanges;
    }
    return nullptr;
}

QPushButton* OrvDialogButtonBox::getButton(DialogButton value) const
{
    QPushButton* found = button(value);
    if (!found) {
        qCWarning(lcDialogs) << "OrvDialogButtonBox::getButton: unknown button" << int(value);
        Q_ASSERT_X(false, "OrvDialogButtonBox::getButton", "unknown DialogButton value");
    }
    return found;
}

void OrvDialogButtonBox::setText(DialogButton value, const QString& text)
{
    if (QPushButton* b = button(value)) {
        // A new text replaces the shortcut by its mnemonic; without one the
        // button keeps its shortcut (Ctrl+W on Close).
        const QKeySequence shortcut = b->shortcut();
        b->setText(text);
        if (QKeySequence::mnemonic(text).isEmpty())
            b->setShortcut(shortcut);
        m_ownTexts.insert(int(value));
    }
}

void OrvDialogButtonBox::setToolTip(DialogButton value, const QString& toolTip)
{
    if (QPushButton* b = button(value))
        b->setToolTip(toolTip);
}

void OrvDialogButtonBox::setIcon(DialogButton value, const QIcon& icon)
{
    if (QPushButton* b = button(value))
        b->setIcon(icon);
}

void OrvDialogButtonBox::setMenu(DialogButton value, QMenu* menu)
{
    if (QPushButton* b = button(value))
        b->setMenu(menu);
}

void OrvDialogButtonBox::setButtonEnabled(DialogButton value, bool enabled)
{
    QPushButton* b = button(value);
    if (!b)
        return;
    if (value == Ok || value == Apply || value == Close) {
        // These three follow the page's change state; switching them from
        // outside is a defect in the calling page that the user should report.
        const QPointer<QPushButton> guard(b);
        OrvMessageDialog::showMessage(
            this,
            QStringLiteral("Hier stimmt etwas nicht. Bitte ZUNO bescheid geben WAS geklickt oder gemacht wurde "
                           "als dieser Dialog auftauchte, damit ich es fixen kann. Danke."),
            QStringLiteral(">>> STOP <<<"), OrvFramelessDialog::Modal, OrvMessageDialog::Ok);
        if (!guard)
            return;
    }
    b->setEnabled(enabled);
}

bool OrvDialogButtonBox::isButtonEnabled(DialogButton value) const
{
    const QPushButton* b = button(value);
    return b && b->isEnabled();
}

void OrvDialogButtonBox::applyVisibility(QPushButton* b, bool visible)
{
    b->setVisible(visible && !(m_isTablet && b == m_ui->pbPrint));
}

void OrvDialogButtonBox::setButtonVisible(DialogButton value, bool visible)
{
    if (QPushButton* b = button(value))
        applyVisibility(b, visible);
}

bool OrvDialogButtonBox::isButtonVisible(DialogButton value) const
{
    const QPushButton* b = button(value);
    return b && b->isVisible();
}

void OrvDialogButtonBox::_setVisibilityForAll(bool visible)
{
    const auto buttons = findChildren<QPushButton*>();
    for (QPushButton* b : buttons)
        applyVisibility(b, visible);
}

void OrvDialogButtonBox::setButtonsVisible(QPushButton* b)
{
    m_ui->line->setVisible(true);
    if (b)
        applyVisibility(b, true);
}

void OrvDialogButtonBox::slotRemoveClicked()
{
    const QPointer<OrvDialogButtonBox> guard(this);
    const auto answer = OrvMessageDialog::showMessage(
        this, tr("Are you sure you want to delete the selected entry(ies)?"), tr("Remove selected entry(ies)"),
        OrvFramelessDialog::Modal, OrvMessageDialog::Buttons(OrvMessageDialog::Yes) | OrvMessageDialog::No);
    if (guard && answer == OrvMessageDialog::Yes)
        Q_EMIT signalRemoveClicked();
}

void OrvDialogButtonBox::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void OrvDialogButtonBox::retranslate()
{
    QHash<int, QString> own;
    for (int value : qAsConst(m_ownTexts))
        own.insert(value, button(DialogButton(value))->text());
    m_ui->retranslateUi(this);
    for (auto it = own.cbegin(); it != own.cend(); ++it) {
        m_ownTexts.remove(it.key());
        setText(DialogButton(it.key()), it.value());
    }
    const auto actions = m_libraryMenu->actions();
    actions.at(0)->setText(tr("Load"));
    actions.at(1)->setText(tr("Save"));
}

} // namespace OrvWidgets
