#pragma once

// Helpers shared by the tests: answering modal questions without blocking.

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>



namespace OrvTest {

// Answers the next questions shown in frameless dialogs, in order. Each answer
// waits (polling the event loop) for a visible frameless dialog that holds a
// button with the given text (mnemonic '&' ignored) and clicks it; Escape
// answers by key press. Texts of the answered dialogs are recorded.
class DialogAnswerer : public QObject
{
    Q_OBJECT
public:
    explicit DialogAnswerer(QObject* parent = nullptr);
    ~DialogAnswerer() override;

    // Queue an answer: click the button with this text.
    DialogAnswerer& click(const QString& buttonText);
    // Queue an answer: press Escape in the dialog.
    DialogAnswerer& escape();
    // Queue an answer: run a callback with the dialog (then nothing else).
    DialogAnswerer& inspect(const std::function<void(QWidget* dialog)>& callback);

    int pending() const { return m_actions.size(); }
    int answered() const { return m_answered; }
    // The message label texts of the answered dialogs, in order.
    const QStringList& texts() const { return m_texts; }
    // The button texts of each answered dialog, left to right.
    const QList<QStringList>& buttons() const { return m_buttons; }

private:
    void poll();

    struct Action
    {
        QString buttonText;
        bool escape = false;
        std::function<void(QWidget*)> callback;
    };
    QList<Action> m_actions;
    QStringList m_texts;
    QList<QStringList> m_buttons;
    int m_answered = 0;
    QTimer m_timer;
    QPointer<QWidget> m_lastDialog;
};

// The visible frameless dialog shown last, or null.
QWidget* visibleFramelessDialog();

} // namespace OrvTest
