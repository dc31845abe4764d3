#pragma once

#include "orv_types.h"

#include <QColor>
#include <QString>

namespace OrvWidgets {

/// The exercise the shell's top bar shows.
struct ExerciseData
{
    /*! The exercise name; empty shows "no exercise". */
    QString exName;
    /*! The exercise description, added to the name's tool tip. */
    QString exDescription;
    /*! The identifier of the current phase. */
    int phId = 0;
    /*! The name of the current phase; empty shows "no phase". */
    QString phName;
    /*! The description of the current phase, added to the phase's tool tip. */
    QString phDescription;
    /*! The exercise state in words; empty shows "no status". */
    QString exStateString;
    /*! The exercise state; the menu shows the entries meant for it. */
    ExcState exState = ExerciseState::eUnknown;
    /*! The colour the state is shown in; invalid keeps the palette's. */
    QColor exStateCol;
    /*! The partition the session works in, in words. */
    QString partitionType;
};

} // namespace OrvWidgets
