#pragma once

// Shared by the widgets that ask blocking questions on themselves.

#include "orv_frameless_dialog.h"

#include <QWidget>

namespace OrvWidgets {

// Answers the questions still open on owner with Cancel while owner is whole,
// so that a question's nested loop ends before its dialog is torn down with
// owner's children.
inline void cancelOpenQuestions(QWidget* owner)
{
    const auto dialogs = owner->findChildren<OrvFramelessDialog*>(Qt::FindDirectChildrenOnly);
    for (OrvFramelessDialog* dialog : dialogs) {
        if (dialog->isVisible())
            dialog->reject();
    }
}

} // namespace OrvWidgets
