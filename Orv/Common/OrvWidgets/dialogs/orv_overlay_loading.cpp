#include "orv_overlay_loading.h"

#include "ui_orv_overlay_loading.h"

namespace OrvWidgets {

OrvOverlayLoading::OrvOverlayLoading(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::OrvOverlayLoading)
{
    m_ui->setupUi(this);
    m_ui->pbCancel->hide();
    connect(m_ui->pbCancel, &QPushButton::clicked, this, [this] {
        // Cancelling twice would send a second request to the server.
        m_ui->pbCancel->setEnabled(false);
        Q_EMIT cancel();
    });
}

OrvOverlayLoading::~OrvOverlayLoading()
{
    delete m_ui;
}

void OrvOverlayLoading::setText(const QString& text)
{
    m_customText = true;
    m_ui->label->setText(text);
}

QString OrvOverlayLoading::text() const
{
    return m_ui->label->text();
}

void OrvOverlayLoading::setCancelButtonVisible(bool visible)
{
    m_ui->pbCancel->setVisible(visible);
}

void OrvOverlayLoading::setCancelButtonEnabled(bool enabled)
{
    m_ui->pbCancel->setEnabled(enabled);
}

void OrvOverlayLoading::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        const QString text = m_ui->label->text();
        m_ui->retranslateUi(this);
        if (m_customText)
            m_ui->label->setText(text); // the caller's text is not ours to translate
    }
}

} // namespace OrvWidgets
