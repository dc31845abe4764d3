#pragma once

#include "orvwidgets_export.h"

#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QLabel;
class QMenu;
class QShortcut;

namespace Ui {
class OrvToolBarArea;
}

namespace OrvWidgets {

class OrvDragIcon;

// One function key of the tool bar area and the entry bound to it.
struct ORVWIDGETS_EXPORT ShortCut
{
    // Creates the key's shortcut object as a child of `parent` (none without parent).
    explicit ShortCut(QWidget* parent = nullptr);

    // The key as portable text ("F5"); empty without a shortcut object.
    QString keyName() const;
    // Frees the key: forgets name, identifier and icon, then drops every
    // connection of the shortcut object.
    void clear();

    int key = 0;
    QPointer<QShortcut> shortcut;
    QString name;
    QString identifier;
    QPointer<OrvDragIcon> icon;
};

// Strip of quick-access copies of menu entries. Dropping a menu button
// (OrvDragIcon) here adds a copy that clicks the original; copies can be
// reordered by drag, removed and bound to F5..F12 through their context menu.
//
// Persistence (operator settings, group "ToolBar"): every change made by the
// operator writes "entries" (identifiers in display order) and "functionKeys"
// ("F5=identifier", ...). The application restores them once its menu buttons
// exist, either with restoreSettings(originals) or by passing savedEntries()
// and savedFunctionKeys() to setMenuEntries()/setFunctionKey(). Stored data
// that is corrupt or names unknown entries is skipped with a warning.
// clearToolBarArea() and the removal of copies whose originals are destroyed
// (e.g. on shutdown) do not write.
class ORVWIDGETS_EXPORT OrvToolBarArea : public QWidget
{
    Q_OBJECT
public:
    explicit OrvToolBarArea(QWidget* parent = nullptr);
    ~OrvToolBarArea() override;

    // Puts a copy of `source` (or moves the bar's own copy `source`) right after
    // `target` (a copy or an original in the bar); at the end without target.
    void addMenuEntry(OrvDragIcon* source, OrvDragIcon* target = nullptr);
    // Removes the copy (given the copy or its original) and its function key.
    bool removeMenuAction(OrvDragIcon* icon);
    // Removes every copy and key binding; does not write the settings.
    void clearToolBarArea();

    // Replaces the bar's entries by copies of the given originals, in order.
    // Key bindings of entries that stay are kept.
    void setMenuEntries(const QList<OrvDragIcon*>& originals);
    // Identifiers of the copies in display order.
    QStringList menuEntries() const;

    // Binds Qt::Key_F5..Qt::Key_F12 to the copy with the identifier; false for
    // other keys or unknown identifiers.
    bool setFunctionKey(int key, const QString& identifier);
    bool removeFunctionKey(const QString& identifier);
    // Bound key code -> identifier.
    QMap<int, QString> functionKeys() const;

    // Stored state, validated (unknown/duplicate/corrupt items skipped with a warning).
    QStringList savedEntries() const;
    QMap<int, QString> savedFunctionKeys() const;
    // Rebuilds the bar from the stored state using the originals available now
    // (matched by identifier); stored identifiers without an original are skipped
    // with a warning. Does not write the settings. True when nothing was skipped.
    bool restoreSettings(const QList<OrvDragIcon*>& availableOriginals);

    static constexpr const char* SettingsGroup = "ToolBar";
    static constexpr const char* EntriesKey = "entries";
    static constexpr const char* FunctionKeysKey = "functionKeys";

public Q_SLOTS:
    void showContextMenu(const QPoint& pos);
    void functionKeyMenuTriggered();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    OrvDragIcon* acceptableSource(QObject* source) const;
    OrvDragIcon* createCopy(OrvDragIcon* original);
    QMenu* createFunctionKeyMenu(QMenu* parent);
    void removeAt(int index, bool deferPlaceholder = false);
    void forgetOriginal(OrvDragIcon* original);
    bool clearKeyOf(const QString& identifier);
    void showPlaceholderIfEmpty();
    void retranslate();
    void saveSettings();
    QStringList readSavedEntries(bool* clean) const;
    QMap<int, QString> readSavedFunctionKeys(bool* clean) const;

    QString m_currentIdentifierForContextMenue;
    QList<OrvDragIcon*> m_buttonMap;
    QList<OrvDragIcon*> m_foreignButtonMap;
    QMap<int, ShortCut> m_functionKeys;
    QLabel* m_dummyLabel = nullptr;
    Ui::OrvToolBarArea* m_ui = nullptr;
    QPointer<QObject> m_contextMenu; // the open context menu (compared, never used as a menu)
    int m_saveBlocked = 0;
};

} // namespace OrvWidgets
