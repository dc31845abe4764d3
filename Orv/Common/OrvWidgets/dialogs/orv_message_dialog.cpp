#include "orv_message_dialog.h"
#include "orv_logging_p.h"

#include "message_dialog_builder_p.h"

#include <QAtomicInt>
#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QLoggingCategory>
#include <QPushButton>
#include <QVBoxLayout>

namespace OrvWidgets {
namespace {
QAtomicInt s_inEventLoop(0);
} // namespace

namespace MessageDialogBuilder {

QPushButton* build(OrvFramelessDialog* dialog, const QString& text, const QString& title,
                   OrvMessageDialog::Buttons buttons,
                   const QHash<OrvMessageDialog::Button, QString>& buttonTexts,
                   const std::function<void(OrvMessageDialog::Button)>& onClicked)
{
    using B = OrvMessageDialog::Button;
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(16);

    QString message = text;
    if (!title.isEmpty())
        message = QStringLiteral("<b>%1</b><br><br>").arg(title) + text;
    auto* label = new QLabel(message, dialog);
    label->setObjectName(QStringLiteral("lblMessage"));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(320);
    layout->addWidget(label);

    struct Spec { B value; const char* objectName; QString text; };
    const Spec specs[] = {
        {OrvMessageDialog::Ok, "pbOk", QCoreApplication::translate("OrvMessageDialogHelper", "Ok")},
        {OrvMessageDialog::Yes, "pbYes", QCoreApplication::translate("OrvMessageDialogHelper", "Yes")},
        {OrvMessageDialog::No, "pbNo", QCoreApplication::translate("OrvMessageDialogHelper", "No")},
        {OrvMessageDialog::Apply, "pbApply", QCoreApplication::translate("OrvMessageDialogHelper", "Apply")},
        {OrvMessageDialog::Discard, "pbDiscard", QCoreApplication::translate("OrvMessageDialogHelper", "Discard")},
        {OrvMessageDialog::Cancel, "pbCancel", QCoreApplication::translate("OrvMessageDialogHelper", "Cancel")},
    };

    auto* row = new QHBoxLayout;
    row->addStretch(1);
    QPushButton* defaultButton = nullptr;
    for (const Spec& spec : specs) {
        if (!buttons.testFlag(spec.value))
            continue;
        auto* button = new QPushButton(buttonTexts.value(spec.value, spec.text), dialog);
        button->setObjectName(QLatin1String(spec.objectName));
        button->setMinimumWidth(90);
        const B value = spec.value;
        QObject::connect(button, &QPushButton::clicked, dialog, [onClicked, value] { onClicked(value); });
        if (value == OrvMessageDialog::Ok || value == OrvMessageDialog::Cancel) {
            button->setDefault(true);
            defaultButton = button;
        }
        row->addWidget(button);
    }
    if (row->count() > 1)
        layout->addLayout(row);
    else
        delete row;
    return defaultButton;
}

} // namespace MessageDialogBuilder

OrvMessageDialog::Button OrvMessageDialog::showMessage(QWidget* parent, const QString& text, const QString& title,
                                                       Behaviour behaviour, Buttons buttons,
                                                       const QHash<Button, QString>& buttonTexts)
{
    if (s_inEventLoop.loadAcquire() != 0) {
        qCDebug(lcDialogs) << "OrvMessageDialog: showMessage called while showMessage is in its Event Loop - do "
                              "not open more than one Dialog at once !!";
    }
    s_inEventLoop.ref();
    auto* helper = new OrvMessageDialogHelper(nullptr);
    const Button result = helper->showMessage(parent, text, title, behaviour, buttons, buttonTexts);
    helper->deleteLater();
    s_inEventLoop.deref();
    return result;
}

OrvMessageDialog::Button OrvMessageDialog::askApplyDiscardCancel(QWidget* parent)
{
    return showMessage(parent,
                       QCoreApplication::translate("OrvDialog", "<br>Apply - apply changes and close.<br>Discard - "
                                                                "discard changes and close.<br>Cancel - do not close."),
                       QCoreApplication::translate("OrvDialog", "Unapplied changes made. Apply the changes?"),
                       OrvFramelessDialog::Modal, Buttons(Apply) | Discard | Cancel, {});
}

OrvMessageDialogHelper::OrvMessageDialogHelper(QObject* parent)
    : QObject(parent)
{
}

OrvMessageDialogHelper::~OrvMessageDialogHelper()
{
    if (m_dialog)
        m_dialog->deleteLater();
}

OrvMessageDialogHelper::Button OrvMessageDialogHelper::showMessage(QWidget* parent, const QString& text,
                                                                   const QString& title,
                                                                   OrvFramelessDialog::Behaviour behaviour,
                                                                   Buttons buttons,
                                                                   const QHash<Button, QString>& buttonTexts)
{
    m_result = OrvMessageDialog::Cancel;
    m_finished = false;
    m_dialog = new OrvFramelessDialog(parent, behaviour);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setObjectName(QStringLiteral("OrvMessageDialog"));

    QPushButton* defaultButton = MessageDialogBuilder::build(
        m_dialog, text, title, buttons, buttonTexts, [this](Button b) {
            switch (b) {
            case OrvMessageDialog::Ok: slotOkay(); break;
            case OrvMessageDialog::Yes: slotYes(); break;
            case OrvMessageDialog::No: slotNo(); break;
            case OrvMessageDialog::Apply: slotApply(); break;
            case OrvMessageDialog::Discard: slotDiscard(); break;
            default: slotCancel(); break;
            }
        });
    connect(m_dialog, &QDialog::rejected, this, &OrvMessageDialogHelper::slotCancel);
    // A parent destroyed while the question is open takes the dialog with it:
    // end the loop with Cancel instead of waiting forever.
    connect(m_dialog, &QObject::destroyed, this, [this] {
        m_dialog = nullptr; // half destroyed: must not be touched any more
        slotCancel();
    });

    QEventLoop loop;
    connect(this, &OrvMessageDialogHelper::signalQuitEventLoop, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    if (defaultButton)
        defaultButton->setFocus(Qt::OtherFocusReason);
    loop.exec(QEventLoop::DialogExec);

    if (m_dialog) {
        disconnect(m_dialog, nullptr, this, nullptr);
        m_dialog->deleteLater();
        m_dialog = nullptr;
    }
    return m_result;
}

void OrvMessageDialogHelper::finish(Button result)
{
    if (m_finished)
        return;
    m_finished = true;
    if (m_dialog)
        m_dialog->hide();
    m_result = result;
    Q_EMIT signalQuitEventLoop();
}

void OrvMessageDialogHelper::slotOkay() { finish(OrvMessageDialog::Ok); }
void OrvMessageDialogHelper::slotYes() { finish(OrvMessageDialog::Yes); }
void OrvMessageDialogHelper::slotNo() { finish(OrvMessageDialog::No); }
void OrvMessageDialogHelper::slotCancel() { finish(OrvMessageDialog::Cancel); }
void OrvMessageDialogHelper::slotApply() { finish(OrvMessageDialog::Apply); }
void OrvMessageDialogHelper::slotDiscard() { finish(OrvMessageDialog::Discard); }

} // namespace OrvWidgets
