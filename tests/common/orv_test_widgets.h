#pragma once

// Small helpers shared by the page framework and shell tests.

#include <orv_dialog.h>

#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QWidget>

namespace OrvTest {

// Object names of the push buttons under box that would be visible with it, sorted.
inline QStringList visibleButtons(QWidget* box)
{
    QStringList names;
    const auto buttons = box->findChildren<QPushButton*>();
    for (QPushButton* b : buttons)
        if (b->isVisibleTo(box))
            names << b->objectName();
    names.sort();
    return names;
}

// The simplest page with something to edit, titled "Page".
class EditPage : public OrvWidgets::OrvDialog
{
public:
    EditPage() : OrvDialog(nullptr, OrvWidgets::OkApplyCancel, true) { new QLineEdit(this); }
    void retranslate() override { translate(QStringLiteral("Page")); }
};

} // namespace OrvTest
