#include "demo_window.h"

#include <dax_translation.h>
#include <dtg.h>
#include <orv_info_dialog.h>
#include <orv_message_dialog.h>
#include <orv_message_dialog_new.h>

#include <QDateTime>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace OrvWidgets;

DemoWindow::DemoWindow(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);

    m_heading = new QLabel(this);
    m_heading->setWordWrap(true);
    layout->addWidget(m_heading, 0, 0, 1, 2);

    m_message = new QPushButton(this);
    m_question = new QPushButton(this);
    m_nonBlocking = new QPushButton(this);
    m_about = new QPushButton(this);
    m_language = new QPushButton(this);
    const QList<QPushButton*> buttons = {m_message, m_question, m_nonBlocking, m_about, m_language};
    for (int i = 0; i < buttons.size(); ++i)
        layout->addWidget(buttons[i], 1 + i / 2, i % 2);

    m_result = new QLabel(this);
    m_result->setObjectName(QStringLiteral("lblResult"));
    layout->addWidget(m_result, 4, 0, 1, 2);
    layout->setRowStretch(5, 1);

    connect(m_message, &QPushButton::clicked, this, &DemoWindow::showMessage);
    connect(m_question, &QPushButton::clicked, this, &DemoWindow::askQuestion);
    connect(m_nonBlocking, &QPushButton::clicked, this, &DemoWindow::askNonBlocking);
    connect(m_about, &QPushButton::clicked, this, [this] { (new OrvInfoDialog(this))->show(); });
    connect(m_language, &QPushButton::clicked, this, &DemoWindow::toggleLanguage);
    retranslate();
}

void DemoWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DemoWindow::retranslate()
{
    setWindowTitle(tr("OrvWidgets demo"));
    m_heading->setText(tr("<h2>Exercise control</h2><p>Current time: %1</p>")
                           .arg(DTG::toString(QDateTime::currentDateTimeUtc(), DTG::eLong, DTG::dateTimeType())));
    m_message->setText(tr("Show a message"));
    m_question->setText(tr("Ask before closing a changed page"));
    m_nonBlocking->setText(tr("Ask without blocking"));
    m_about->setText(tr("About"));
    m_language->setText(tr("Deutsch"));
}

void DemoWindow::showMessage()
{
    OrvMessageDialog::showMessage(this, tr("The exercise has been saved."), tr("Saved"));
}

void DemoWindow::askQuestion()
{
    const auto answer = OrvMessageDialog::askApplyDiscardCancel(this);
    const QString names[] = {tr("Apply"), tr("Discard"), tr("Cancel")};
    const int index = answer == OrvMessageDialog::Apply ? 0 : answer == OrvMessageDialog::Discard ? 1 : 2;
    m_result->setText(tr("Answer: %1").arg(names[index]));
}

void DemoWindow::askNonBlocking()
{
    auto* question = new OrvMessageDialogNew(this, tr("Start the exercise now?"), tr("Exercise"),
                                             OrvFramelessDialog::Modal,
                                             OrvMessageDialog::Buttons(OrvMessageDialog::Yes) | OrvMessageDialog::No,
                                             {}, true);
    connect(question, &OrvMessageDialogNew::yes, this, [this, question] {
        m_result->setText(tr("Answer: %1").arg(tr("Yes")));
        question->deleteLater();
    });
    connect(question, &OrvMessageDialogNew::no, this, [this, question] {
        m_result->setText(tr("Answer: %1").arg(tr("No")));
        question->deleteLater();
    });
}

void DemoWindow::toggleLanguage()
{
    const bool german = Dax::translationLocale() == "de_DE";
    Dax::setTranslationLocale(german ? "en_GB" : "de_DE", QStringLiteral("orv-demo"));
}
