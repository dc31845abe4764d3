#pragma once

#include "orv_types.h"
#include "orvwidgets_export.h"

#include <QByteArray>
#include <QIcon>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace OrvWidgets {

class OrvDialog;

// A text kept in its untranslated form and translated when shown, so that a
// language switch re-translates it.
struct ORVWIDGETS_EXPORT TranslatableText
{
    TranslatableText() = default;
    TranslatableText(const char* context, const char* sourceText);

    QString translated() const;
    bool isEmpty() const { return m_sourceText.isEmpty(); }

    QByteArray m_context;
    QByteArray m_sourceText;
};

// One entry of the plug-in menu: a page to open or a direct action.
struct ORVWIDGETS_EXPORT PluginData
{
    using createWidgetFuncPtr = std::function<OrvDialog*(QWidget*)>;
    using directFuncPtr = std::function<void(const PluginData&)>;

    PluginData() = default;
    PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier,
               const createWidgetFuncPtr& createWidgetFunc, int operatorRight = 0,
               ExercisePart exercisePart = eSpecial, ExerciseStates exerciseStates = ExerciseState::eAll);
    PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier, const QIcon& icon,
               const createWidgetFuncPtr& createWidgetFunc, int operatorRight = 0,
               ExercisePart exercisePart = eSpecial, ExerciseStates exerciseStates = ExerciseState::eAll);

    // A separator record of a group: neither function set.
    static PluginData createGroup(const QString& menuGroup, const QString& identifier,
                                  ExercisePart exercisePart = eSpecial);

    // Usable as a menu entry: an identifier, a menu group and something to run.
    bool isValid() const;

    createWidgetFuncPtr createWidgetFunc;
    directFuncPtr directFunc;
    QStringList iconPaths;
    QIcon menuIcon;
    QString tooltip;
    qulonglong dropHandlerKey = 0;
    QString menuText;
    QString menuGroup;
    TranslatableText translatableMenuGroup;
    QString identifier;
    bool closable = true;
    LayoutArea layoutArea = eDialogTab;
    int operatorRight = 0;
    CreateInstantType createInstant = DontCreateInstant;
    bool visibleInMenu = true;
    ExercisePart exercisePart = eSpecial;
    ExerciseStates exerciseStates = ExerciseState::eAll;
};

} // namespace OrvWidgets
