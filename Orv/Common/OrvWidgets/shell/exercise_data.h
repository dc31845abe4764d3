#pragma once

#include "orv_types.h"

#include <QColor>
#include <QString>

namespace OrvWidgets {

// The exercise the shell's top bar shows.
struct ExerciseData
{
    QString exName;
    QString exDescription;
    int phId = 0;
    QString phName;
    QString phDescription;
    QString exStateString;
    ExcState exState = ExerciseState::eUnknown;
    QColor exStateCol;
    QString partitionType;
};

} // namespace OrvWidgets
