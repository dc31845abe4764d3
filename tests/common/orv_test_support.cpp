#include "orv_test_support.h"

#include <orv_frameless_dialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTest>

namespace OrvTest {

namespace {
QList<QWidget*> visibleFramelessDialogs()
{
    QList<QWidget*> found;
    // The active popup or modal dialog is the one the user would answer first.
    for (QWidget* active : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
        if (qobject_cast<OrvWidgets::OrvFramelessDialog*>(active) && active->isVisible() && !found.contains(active))
            found << active;
    }
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* w : widgets) {
        if (qobject_cast<OrvWidgets::OrvFramelessDialog*>(w) && w->isVisible() && !found.contains(w))
            found << w;
    }
    return found;
}
} // namespace

QWidget* visibleFramelessDialog()
{
    const QList<QWidget*> dialogs = visibleFramelessDialogs();
    return dialogs.isEmpty() ? nullptr : dialogs.first();
}

DialogAnswerer::DialogAnswerer(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(5);
    connect(&m_timer, &QTimer::timeout, this, &DialogAnswerer::poll);
    m_timer.start();
}

DialogAnswerer::~DialogAnswerer() = default;

DialogAnswerer& DialogAnswerer::click(const QString& buttonText)
{
    m_actions.append(Action{buttonText, false, {}});
    return *this;
}

DialogAnswerer& DialogAnswerer::escape()
{
    m_actions.append(Action{QString(), true, {}});
    return *this;
}

DialogAnswerer& DialogAnswerer::inspect(const std::function<void(QWidget*)>& callback)
{
    m_actions.append(Action{QString(), false, callback});
    return *this;
}

void DialogAnswerer::poll()
{
    if (m_actions.isEmpty())
        return;
    const Action action = m_actions.first();
    QWidget* dialog = nullptr;
    QAbstractButton* target = nullptr;
    QStringList buttonTexts;
    const QList<QWidget*> candidates = visibleFramelessDialogs();
    for (QWidget* candidate : candidates) {
        if (candidate == m_lastDialog)
            continue;
        QStringList texts;
        QAbstractButton* match = nullptr;
        const auto buttons = candidate->findChildren<QAbstractButton*>();
        for (QAbstractButton* b : buttons) {
            if (!b->isVisibleTo(candidate))
                continue;
            QString text = b->text();
            text.remove(QLatin1Char('&'));
            texts << text;
            if (text == action.buttonText)
                match = b;
        }
        if (action.escape || action.callback || match) {
            dialog = candidate;
            target = match;
            buttonTexts = texts;
            break;
        }
    }
    if (!dialog)
        return; // not the dialog we are waiting for (yet)

    m_actions.removeFirst();
    ++m_answered;
    m_lastDialog = dialog;
    const auto labels = dialog->findChildren<QLabel*>();
    QString text;
    for (QLabel* l : labels) {
        if (l->objectName() == QLatin1String("lblMessage"))
            text = l->text();
    }
    m_texts << text;
    m_buttons << buttonTexts;

    QPointer<QWidget> guard(dialog);
    if (action.callback)
        action.callback(dialog);
    else if (action.escape)
        QTest::keyClick(dialog, Qt::Key_Escape);
    else
        target->click();
    if (!guard)
        m_lastDialog = nullptr;
}

} // namespace OrvTest
