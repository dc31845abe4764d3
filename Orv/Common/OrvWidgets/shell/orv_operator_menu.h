#pragma once

#include "orv_frameless_dialog.h"

#include <QKeyEvent>

namespace Ui {
class OrvOperatorMenu;
}

namespace OrvWidgets {

// Who is logged in and where; logout, exit, settings, terminal, language.
class ORVWIDGETS_EXPORT OrvOperatorMenu : public OrvFramelessDialog
{
    Q_OBJECT
public:
    OrvOperatorMenu(const QString& operatorName, const QString& workspaceId, bool showWorkspace, int screenCount,
                    QWidget* parent);
    ~OrvOperatorMenu() override;

    void setTerminalButton(bool visible);
    void setOperatorSettingsButton(bool visible);

    // The terminal started for these modifiers: "xterm" with exactly Control, else "konsole".
    static QString terminalProgram(Qt::KeyboardModifiers modifiers);

Q_SIGNALS:
    void signalLogout();
    void signalExit();
    void signalShowOperatorSettings();
    void signalSwap();

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onTerminalButtonClicked();
    void onLanguageChange();
    void slotShowInfoDialog();

private:
    void retranslate();

    Ui::OrvOperatorMenu* m_ui;
    QString m_workspaceId;
};

} // namespace OrvWidgets
