#include "plugin_data.h"

#include <QCoreApplication>

namespace OrvWidgets {

TranslatableText::TranslatableText(const char* context, const char* sourceText)
    : m_context(context)
    , m_sourceText(sourceText)
{
}

QString TranslatableText::translated() const
{
    return QCoreApplication::translate(m_context.constData(), m_sourceText.constData());
}

PluginData::PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier,
                       const createWidgetFuncPtr& createWidgetFunc, int operatorRight, ExercisePart exercisePart,
                       ExerciseStates exerciseStates)
    : createWidgetFunc(createWidgetFunc)
    , menuText(menuText)
    , menuGroup(menuGroup)
    , identifier(identifier)
    , operatorRight(operatorRight)
    , exercisePart(exercisePart)
    , exerciseStates(exerciseStates)
{
}

PluginData::PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier,
                       const QIcon& icon, const createWidgetFuncPtr& createWidgetFunc, int operatorRight,
                       ExercisePart exercisePart, ExerciseStates exerciseStates)
    : PluginData(menuText, menuGroup, identifier, createWidgetFunc, operatorRight, exercisePart, exerciseStates)
{
    menuIcon = icon;
}

PluginData PluginData::createGroup(const QString& menuGroup, const QString& identifier, ExercisePart exercisePart)
{
    PluginData data;
    data.menuGroup = menuGroup;
    data.identifier = identifier;
    data.exercisePart = exercisePart;
    return data;
}

bool PluginData::isValid() const
{
    return !identifier.isEmpty() && !menuGroup.isEmpty() && (createWidgetFunc || directFunc);
}

} // namespace OrvWidgets
