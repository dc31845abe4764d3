#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

// The demo's main window: what the library offers so far, one button each.
class DemoWindow : public QWidget
{
    Q_OBJECT
public:
    explicit DemoWindow(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showMessage();
    void askQuestion();
    void askNonBlocking();
    void toggleLanguage();

    QLabel* m_heading = nullptr;
    QLabel* m_result = nullptr;
    QPushButton* m_message = nullptr;
    QPushButton* m_question = nullptr;
    QPushButton* m_nonBlocking = nullptr;
    QPushButton* m_about = nullptr;
    QPushButton* m_language = nullptr;
};
