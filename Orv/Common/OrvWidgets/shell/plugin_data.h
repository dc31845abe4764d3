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

/// A text kept in its untranslated form and translated when shown, so that a
/// language switch re-translates it.
struct ORVWIDGETS_EXPORT TranslatableText
{
    TranslatableText() = default;
    /*! The text \a sourceText of the translation context \a context. */
    TranslatableText(const char* context, const char* sourceText);

    /*! The text in the current language. */
    QString translated() const;
    /*! True when no source text is set. */
    bool isEmpty() const { return m_sourceText.isEmpty(); }

    /*! The translation context. */
    QByteArray m_context;
    /*! The untranslated text. */
    QByteArray m_sourceText;
};

/// One entry of the plug-in menu: a page to open or a direct action.
struct ORVWIDGETS_EXPORT PluginData
{
    /*! Creates the entry's page; receives the shell. The shell takes ownership of the page. */
    using createWidgetFuncPtr = std::function<OrvDialog*(QWidget*)>;
    /*! Runs an action without a page; receives the entry. */
    using directFuncPtr = std::function<void(const PluginData&)>;

    /*! An empty record; not valid until filled. */
    PluginData() = default;
    /*! An entry \a identifier that opens the page \a createWidgetFunc creates, shown as
        \a menuText in \a menuGroup of \a exercisePart while the exercise is in one of
        \a exerciseStates; added only for an operator holding \a operatorRight. */
    PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier,
               const createWidgetFuncPtr& createWidgetFunc, int operatorRight = 0,
               ExercisePart exercisePart = eSpecial, ExerciseStates exerciseStates = ExerciseState::eAll);
    /*! As the constructor above, with the button icon \a icon. */
    PluginData(const QString& menuText, const QString& menuGroup, const QString& identifier, const QIcon& icon,
               const createWidgetFuncPtr& createWidgetFunc, int operatorRight = 0,
               ExercisePart exercisePart = eSpecial, ExerciseStates exerciseStates = ExerciseState::eAll);

    /// A separator record of a group: neither function set.
    static PluginData createGroup(const QString& menuGroup, const QString& identifier,
                                  ExercisePart exercisePart = eSpecial);

    /// Usable as a menu entry: an identifier, a menu group and something to run.
    bool isValid() const;

    /*! Creates the entry's page; empty for an action or a separator. */
    createWidgetFuncPtr createWidgetFunc;
    /*! The action of an entry without a page. */
    directFuncPtr directFunc;
    /*! Icon files of the entry. */
    QStringList iconPaths;
    /*! The icon of the button. */
    QIcon menuIcon;
    /*! The tool tip of the button (set only when not empty). */
    QString tooltip;
    /*! Key handed to the button for drag and drop. */
    qulonglong dropHandlerKey = 0;
    /*! The button text. */
    QString menuText;
    /*! The group: the tool box page of the button and the tab group of the page. */
    QString menuGroup;
    /*! The menu group in its untranslated form, re-translated on a language switch. */
    TranslatableText translatableMenuGroup;
    /*! Unique key of the entry: object name of its button and identifier of its page. */
    QString identifier;
    /*! The page's tab can be closed. */
    bool closable = true;
    /*! The area in which the page opens. */
    LayoutArea layoutArea = eDialogTab;
    /*! The right the operator needs for the entry to be added (0: none). */
    int operatorRight = 0;
    /*! Whether the page is created as soon as the entry is added. */
    CreateInstantType createInstant = DontCreateInstant;
    /*! The entry is shown in the menu. */
    bool visibleInMenu = true;
    /*! The tool box (exercise part) of the entry. */
    ExercisePart exercisePart = eSpecial;
    /*! The exercise states in which the button is visible. */
    ExerciseStates exerciseStates = ExerciseState::eAll;
};

} // namespace OrvWidgets
