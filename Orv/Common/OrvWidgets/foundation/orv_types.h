#pragma once

#include "orvwidgets_export.h"

#include <QFlags>
#include <QMetaType>
#include <QObject>

namespace OrvWidgets {

// Area of the shell a page lives in; eUnknown and eDialogTab both mean the dialog area.
enum LayoutArea { eUnknown = 0, eInfoTab = 1, eDialogTab = 2, eSpecialTab = 3, eMainTab = 4 };

// Phase of an exercise; the shell keeps one tool box of menu buttons per part.
enum ExercisePart { ePlanning = 0, eExecution = 1, eAfterAction = 2, eSpecial = 3 };

namespace ExerciseState {
enum State {
    eUnknown = 0,
    eCreated = 1,
    eStarted = 2,
    ePaused = 4,
    eStopped = 16,
    eTerminated = 32,
    eAll = 55
};
Q_DECLARE_FLAGS(ExerciseStates, State)
} // namespace ExerciseState
using ExerciseStates = ExerciseState::ExerciseStates;
using ExcState = ExerciseState::State;

// When a menu entry's page is created (see the shell's addMenuAction).
enum CreateInstantType {
    DontCreateInstant = 0,
    CreateInstantAndAddAction = 1,
    CreateInstantAndDiscardAction = 2
};

enum ButtonStyle { eAll = 1, eTextOnly = 2, eIconOnly = 3, eTextNextToIcon = 4 };
enum ButtonSize { eDefault = 40 };

// The standard button sets of a page.
enum ButtonCombination { OkApplyCancel = 0, OkCancel = 1, CloseOnly = 2, SeamlessDialog = 3 };

// The buttons of the page button box, by fixed value.
enum DialogButton {
    ReadOnly = 0,
    Ok = 1,
    Apply = 2,
    Close = 3,
    Yes = 4,
    No = 5,
    Remove = 6,
    Hide = 7,
    Add = 8,
    Help = 9,
    Edit = 10,
    Save = 11,
    Load = 12,
    Show = 13,
    Import = 14,
    Export = 15,
    CenterMap = 16,
    ZoomMapTo = 17,
    Library = 18,
    Print = 19,
    _debug_ = 20
};

/*! The same enumerations once more, as meta-object enums for the form designer's
    properties. */
class ORVWIDGETS_EXPORT Designer
{
    Q_GADGET
public:
    /*! As OrvWidgets::ButtonStyle. */
    enum ButtonStyle { eAll = 1, eTextOnly = 2, eIconOnly = 3, eTextNextToIcon = 4 };
    Q_ENUM(ButtonStyle)
    /*! As OrvWidgets::ButtonSize. */
    enum ButtonSize { eDefault = 40 };
    Q_ENUM(ButtonSize)
    /*! As OrvWidgets::LayoutArea; eUnknown is named eUnknownArea here. */
    enum LayoutArea { eUnknownArea = 0, eInfoTab = 1, eDialogTab = 2, eSpecialTab = 3, eMainTab = 4 };
    Q_ENUM(LayoutArea)
};

} // namespace OrvWidgets

Q_DECLARE_OPERATORS_FOR_FLAGS(OrvWidgets::ExerciseState::ExerciseStates)
Q_DECLARE_METATYPE(OrvWidgets::LayoutArea)
