#pragma once

#include "orv_frameless_dialog.h"

namespace Ui {
class OrvInfoDialog;
}

namespace OrvWidgets {

/// Product information: heading, maker, project logo, version and build date.
class ORVWIDGETS_EXPORT OrvInfoDialog : public OrvFramelessDialog
{
    Q_OBJECT
public:
    /*! A popup over \a parent showing the product information. */
    explicit OrvInfoDialog(QWidget* parent);
    ~OrvInfoDialog() override;

    /// "%1.%2-%3 (rev: %4)": major, minor, build revision, patch.
    static QString versionText();

protected:
    /*! \reimp */
    void changeEvent(QEvent* event) override;

private:
    void retranslate();

    Ui::OrvInfoDialog* m_ui;
};

} // namespace OrvWidgets
