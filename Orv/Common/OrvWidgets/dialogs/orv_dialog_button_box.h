#pragma once

#include "orv_types.h"
#include "orvwidgets_export.h"

#include <QSet>
#include <QWidget>

class QIcon;
class QMenu;
class QPushButton;

namespace Ui {
class OrvDialogButtonBox;
}

namespace OrvWidgets {

// The standard button row at the foot of every page frame: twenty-one push
// buttons addressed by DialogButton, all hidden except Ok and Close.
class ORVWIDGETS_EXPORT OrvDialogButtonBox : public QWidget
{
    Q_OBJECT
public:
    explicit OrvDialogButtonBox(QWidget* parent = nullptr);
    ~OrvDialogButtonBox() override;

    // The push button of the value; any other value is a programming error.
    QPushButton* getButton(DialogButton button) const;

    void setText(DialogButton button, const QString& text);
    void setToolTip(DialogButton button, const QString& toolTip);
    void setIcon(DialogButton button, const QIcon& icon);
    void setMenu(DialogButton button, QMenu* menu);

    void setButtonEnabled(DialogButton button, bool enabled);
    bool isButtonEnabled(DialogButton button) const;
    void setButtonVisible(DialogButton button, bool visible);
    bool isButtonVisible(DialogButton button) const;

    void _setVisibilityForAll(bool visible);

Q_SIGNALS:
    void signalRemoveClicked();
    void signalHelpClicked();
    void signalLibraryLoadClicked();
    void signalLibrarySaveClicked();

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotRemoveClicked();

private:
    // Lookup without the programming-error check, for the operations that
    // treat an unknown value as an absent button.
    QPushButton* button(DialogButton button) const;
    void setButtonsVisible(QPushButton* button);
    void applyVisibility(QPushButton* button, bool visible);
    void retranslate();

    const bool m_isTablet;
    Ui::OrvDialogButtonBox* m_ui = nullptr;
    QMenu* m_libraryMenu = nullptr;
    // Buttons whose text the owner replaced: a language change leaves them to
    // the owner instead of restoring the form's text.
    QSet<int> m_ownTexts;
};

} // namespace OrvWidgets
