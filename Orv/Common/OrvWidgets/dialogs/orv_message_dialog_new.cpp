#include "orv_message_dialog_new.h"

#include "message_dialog_builder_p.h"

#include <QPushButton>

namespace OrvWidgets {

OrvMessageDialogNew::OrvMessageDialogNew(QWidget* parent, const QString& text, const QString& title,
                                         OrvFramelessDialog::Behaviour behaviour,
                                         OrvMessageDialog::Buttons buttons,
                                         const QHash<OrvMessageDialog::Button, QString>& buttonTexts,
                                         bool deleteOnClose)
    : QObject(parent)
{
    m_dialog = new OrvFramelessDialog(parent, behaviour);
    m_dialog->setObjectName(QStringLiteral("OrvMessageDialog"));
    if (deleteOnClose)
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);

    QPushButton* defaultButton = MessageDialogBuilder::build(
        m_dialog, text, title, buttons, buttonTexts, [this](OrvMessageDialog::Button b) {
            if (m_dialog)
                m_dialog->accept();
            switch (b) {
            case OrvMessageDialog::Ok: Q_EMIT ok(); break;
            case OrvMessageDialog::Yes: Q_EMIT yes(); break;
            case OrvMessageDialog::No: Q_EMIT no(); break;
            case OrvMessageDialog::Apply: Q_EMIT apply(); break;
            case OrvMessageDialog::Discard: Q_EMIT discard(); break;
            default: Q_EMIT cancel(); break;
            }
        });
    m_dialog->show();
    m_dialog->raise();
    if (defaultButton)
        defaultButton->setFocus(Qt::OtherFocusReason);
}

OrvMessageDialogNew::~OrvMessageDialogNew() = default;

} // namespace OrvWidgets
