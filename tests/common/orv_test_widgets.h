#pragma once

// Small inspection helpers shared by the page framework tests.

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

} // namespace OrvTest
