#include "orv_tool_bar_area.h"
#include "orv_logging_p.h"

#include "orv_drag_icon.h"
#include "orv_settings.h"
#include "ui_orv_tool_bar_area.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QSet>
#include <QShortcut>

namespace OrvWidgets {
namespace {

constexpr int kCopyIconSize = 40;

bool isFunctionKey(int key)
{
    return key >= Qt::Key_F5 && key <= Qt::Key_F12;
}

// "F5" .. "F12" -> key code, built once.
int functionKeyFromName(const QString& name)
{
    static const QHash<QString, int> keys = [] {
        QHash<QString, int> map;
        for (int key = Qt::Key_F5; key <= Qt::Key_F12; ++key)
            map.insert(QKeySequence(key).toString(QKeySequence::PortableText), key);
        return map;
    }();
    return keys.value(name, 0);
}

QString functionKeyName(int key)
{
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

// A stored list of strings. INI storage hands back a one-element list as a
// plain string and an empty one as an invalid value; both are fine. Any other
// type is corrupt and yields nothing; non-string elements are skipped.
QStringList storedStringList(const QVariant& value, const char* key, bool* clean)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::QString:
        return value.toString().isEmpty() ? QStringList() : QStringList{value.toString()};
    case QMetaType::QStringList:
        return value.toStringList();
    case QMetaType::QVariantList: {
        QStringList result;
        for (const QVariant& item : value.toList()) {
            if (item.typeId() == QMetaType::QString)
                result << item.toString();
            else {
                *clean = false;
                qCWarning(lcContainers).noquote() << "OrvToolBarArea: skipping stored" << key << "item of type"
                                                   << item.typeName();
            }
        }
        return result;
    }
    default:
        *clean = false;
        qCWarning(lcContainers).noquote() << "OrvToolBarArea: ignoring stored" << key << "of type" << value.typeName();
        return {};
    }
}

// Blocks saveSettings() for the lifetime of the guard (nested use allowed).
class SaveBlocker
{
public:
    explicit SaveBlocker(int& counter)
        : m_counter(counter)
    {
        ++m_counter;
    }
    ~SaveBlocker() { --m_counter; }
    SaveBlocker(const SaveBlocker&) = delete;
    SaveBlocker& operator=(const SaveBlocker&) = delete;

private:
    int& m_counter;
};

} // namespace

// ---------------------------------------------------------------------------
// ShortCut

ShortCut::ShortCut(QWidget* parent)
{
    if (parent) {
        shortcut = new QShortcut(parent);
        // A free key must not swallow the key press.
        shortcut->setEnabled(false);
    }
}

QString ShortCut::keyName() const
{
    return shortcut ? shortcut->key().toString(QKeySequence::PortableText) : QString();
}

void ShortCut::clear()
{
    name.clear();
    identifier.clear();
    icon = nullptr;
    if (shortcut) {
        shortcut->disconnect();
        shortcut->setEnabled(false);
    }
}

// ---------------------------------------------------------------------------
// OrvToolBarArea

OrvToolBarArea::OrvToolBarArea(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::OrvToolBarArea)
{
    m_ui->setupUi(this);
    setAcceptDrops(true);
    clearToolBarArea();
    for (int key = Qt::Key_F5; key <= Qt::Key_F12; ++key) {
        ShortCut record(this);
        record.key = key;
        record.shortcut->setKey(QKeySequence(key));
        m_functionKeys.insert(key, record);
    }
}

OrvToolBarArea::~OrvToolBarArea()
{
    // Originals outlive the bar; their destruction must not reach it any more.
    for (OrvDragIcon* original : std::as_const(m_foreignButtonMap))
        disconnect(original, &QObject::destroyed, this, nullptr);
    // An open context menu reports its end to this object's members: close it
    // while they still exist.
    delete m_contextMenu;
    delete m_ui;
}

OrvDragIcon* OrvToolBarArea::acceptableSource(QObject* source) const
{
    OrvDragIcon* icon = OrvDragIcon::enclosingDragIcon(source);
    if (!icon || m_foreignButtonMap.contains(icon))
        return nullptr;
    return icon;
}

void OrvToolBarArea::dragEnterEvent(QDragEnterEvent* event)
{
    if (!acceptableSource(event->source())) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void OrvToolBarArea::dropEvent(QDropEvent* event)
{
    OrvDragIcon* source = acceptableSource(event->source());
    if (!source) {
        event->ignore();
        return;
    }
    OrvDragIcon* target = OrvDragIcon::enclosingDragIcon(childAt(event->position().toPoint()), this);
    if (target == source) {
        event->ignore();
        return;
    }
    addMenuEntry(source, target);
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

OrvDragIcon* OrvToolBarArea::createCopy(OrvDragIcon* original)
{
    auto* copy = new OrvDragIcon(this);
    copy->setIcon(original->icon());
    copy->setText(original->text());
    copy->setContext(original->context());
    if (!original->toolTip().isEmpty())
        copy->setToolTip(original->toolTip());
    copy->setIdentifier(original->identifier());
    copy->setIconSize(ButtonSize(kCopyIconSize));
    copy->setButtonStyle(eIconOnly);
    copy->setEnabled(original->isEnabled());
    connect(copy, &OrvDragIcon::clicked, original, &OrvDragIcon::clicked);
    connect(original, &QObject::destroyed, this, [this, original] { forgetOriginal(original); });
    connect(original, &OrvDragIcon::enabledChanged, copy, &QWidget::setEnabled);
    copy->setVisible(!original->text().isEmpty());
    copy->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(copy, &QWidget::customContextMenuRequested, this, &OrvToolBarArea::showContextMenu);
    return copy;
}

void OrvToolBarArea::addMenuEntry(OrvDragIcon* source, OrvDragIcon* target)
{
    if (!source) {
        qCWarning(lcContainers) << "OrvToolBarArea::addMenuEntry: cannot add null-entry!";
        return;
    }
    if (m_foreignButtonMap.contains(source))
        return;
    delete m_dummyLabel;
    m_dummyLabel = nullptr;

    OrvDragIcon* copy = nullptr;
    OrvDragIcon* original = nullptr;
    const int own = m_buttonMap.indexOf(source);
    if (own >= 0) {
        // A copy moved inside the bar; without a target it stays. It is taken out
        // before the target is looked for, so dropped onto itself it goes to the end.
        if (!target)
            return;
        copy = m_buttonMap.takeAt(own);
        original = m_foreignButtonMap.takeAt(own);
        m_ui->horizontalLayout->removeWidget(copy);
    } else {
        original = source;
        copy = createCopy(source);
    }

    qsizetype index = m_buttonMap.size();
    if (target) {
        for (qsizetype i = 0; i < m_buttonMap.size(); ++i) {
            if (m_buttonMap.at(i) == target || m_foreignButtonMap.at(i) == target) {
                index = i + 1;
                break;
            }
        }
    }
    m_foreignButtonMap.insert(index, original);
    m_buttonMap.insert(index, copy);
    // Item 0 of the layout is the leading spacer.
    m_ui->horizontalLayout->insertWidget(int(index) + 1, copy, 0);
    saveSettings();
}

void OrvToolBarArea::removeAt(int index, bool deferPlaceholder)
{
    OrvDragIcon* copy = m_buttonMap.takeAt(index);
    OrvDragIcon* original = m_foreignButtonMap.takeAt(index);
    disconnect(original, &QObject::destroyed, this, nullptr);
    clearKeyOf(copy->identifier());
    m_ui->horizontalLayout->removeWidget(copy);
    copy->disconnect();
    copy->hide();
    // Deferred: the copy may be the sender of the signal that removes it.
    copy->deleteLater();
    if (deferPlaceholder)
        QMetaObject::invokeMethod(this, &OrvToolBarArea::showPlaceholderIfEmpty, Qt::QueuedConnection);
    else
        showPlaceholderIfEmpty();
}

void OrvToolBarArea::forgetOriginal(OrvDragIcon* original)
{
    // The menu entry is gone: drop its copy and key, but keep the stored
    // settings (originals are destroyed on every shutdown). No new widgets now:
    // the window around the bar may be going down.
    const qsizetype index = m_foreignButtonMap.indexOf(original);
    if (index >= 0)
        removeAt(int(index), true);
}

bool OrvToolBarArea::clearKeyOf(const QString& identifier)
{
    if (identifier.isEmpty())
        return false;
    for (ShortCut& record : m_functionKeys) {
        if (record.identifier == identifier) {
            if (record.icon)
                record.icon->removeModification();
            record.clear();
            return true;
        }
    }
    return false;
}

bool OrvToolBarArea::removeMenuAction(OrvDragIcon* icon)
{
    if (!icon) {
        qCWarning(lcContainers) << "OrvToolBarArea::removeMenuAction: cannot remove null-entry!";
        return false;
    }
    qsizetype index = m_buttonMap.indexOf(icon);
    if (index < 0)
        index = m_foreignButtonMap.indexOf(icon);
    if (index < 0)
        return false;
    removeAt(int(index));
    saveSettings();
    return true;
}

void OrvToolBarArea::clearToolBarArea()
{
    for (ShortCut& record : m_functionKeys)
        record.clear();
    while (!m_buttonMap.isEmpty())
        removeAt(int(m_buttonMap.size()) - 1);
    showPlaceholderIfEmpty();
}

void OrvToolBarArea::showPlaceholderIfEmpty()
{
    if (!m_buttonMap.isEmpty() || m_dummyLabel)
        return;
    m_dummyLabel = new QLabel(this);
    m_dummyLabel->setObjectName(QStringLiteral("dummyLabel"));
    m_dummyLabel->setEnabled(false);
    m_dummyLabel->setText(tr("Drag menu entries here"));
    m_ui->horizontalLayout->insertWidget(1, m_dummyLabel, 0);
}

void OrvToolBarArea::setMenuEntries(const QList<OrvDragIcon*>& originals)
{
    const QMap<int, QString> keys = functionKeys();
    {
        const SaveBlocker blocker(m_saveBlocked);
        clearToolBarArea();
        for (OrvDragIcon* original : originals) {
            if (!original) {
                qCWarning(lcContainers) << "OrvToolBarArea::setMenuEntries: skipping null-entry";
                continue;
            }
            addMenuEntry(original, nullptr);
        }
        const QStringList entries = menuEntries();
        const QSet<QString> present(entries.cbegin(), entries.cend());
        for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
            if (present.contains(it.value()))
                setFunctionKey(it.key(), it.value());
        }
    }
    saveSettings();
}

QStringList OrvToolBarArea::menuEntries() const
{
    QStringList result;
    result.reserve(m_buttonMap.size());
    for (const OrvDragIcon* copy : m_buttonMap)
        result << copy->identifier();
    return result;
}

bool OrvToolBarArea::setFunctionKey(int key, const QString& identifier)
{
    if (!isFunctionKey(key)) {
        qCWarning(lcContainers).noquote() << "OrvToolBarArea::setFunctionKey: key" << Qt::hex << Qt::showbase << key
                                           << "is not one of F5 to F12";
        return false;
    }
    OrvDragIcon* copy = nullptr;
    if (!identifier.isEmpty()) {
        for (OrvDragIcon* candidate : std::as_const(m_buttonMap)) {
            if (candidate->identifier() == identifier) {
                copy = candidate;
                break;
            }
        }
    }
    if (!copy) {
        qCWarning(lcContainers).noquote() << "OrvToolBarArea::setFunctionKey: no entry" << identifier
                                           << "in the tool bar";
        return false;
    }
    ShortCut& record = m_functionKeys[key];
    if (record.identifier == identifier && record.icon == copy)
        return true;

    if (!record.identifier.isEmpty()) {
        for (OrvDragIcon* other : std::as_const(m_buttonMap)) {
            if (other->identifier() == record.identifier)
                other->removeModification();
        }
    }
    // An entry has at most one key.
    for (ShortCut& other : m_functionKeys) {
        if (other.identifier == identifier) {
            other.clear();
            break;
        }
    }
    record.clear();
    record.identifier = identifier;
    record.name = copy->text();
    record.icon = copy;
    copy->setModification(record.keyName());
    if (record.shortcut) {
        connect(record.shortcut, &QShortcut::activated, copy, &OrvDragIcon::clicked);
        record.shortcut->setEnabled(true);
    }
    saveSettings();
    return true;
}

bool OrvToolBarArea::removeFunctionKey(const QString& identifier)
{
    if (!clearKeyOf(identifier))
        return false;
    saveSettings();
    return true;
}

QMap<int, QString> OrvToolBarArea::functionKeys() const
{
    QMap<int, QString> result;
    for (auto it = m_functionKeys.cbegin(); it != m_functionKeys.cend(); ++it) {
        if (!it->identifier.isEmpty())
            result.insert(it.key(), it->identifier);
    }
    return result;
}

void OrvToolBarArea::showContextMenu(const QPoint& pos)
{
    auto* copy = qobject_cast<OrvDragIcon*>(sender());
    if (!copy || !m_buttonMap.contains(copy)) {
        qCWarning(lcContainers) << "OrvToolBarArea::showContextMenu: sender is no entry of the tool bar";
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_contextMenu = menu;
    m_currentIdentifierForContextMenue = copy->identifier();
    connect(menu, &QObject::destroyed, this, [this](QObject* gone) {
        // Only when no newer menu has taken over.
        if (m_contextMenu.isNull() || m_contextMenu == gone)
            m_currentIdentifierForContextMenue.clear();
    });
    const QPointer<OrvDragIcon> guard(copy);
    QAction* remove = menu->addAction(tr("Remove"));
    connect(remove, &QAction::triggered, this, [this, guard] {
        if (guard)
            removeMenuAction(guard);
    });
    menu->addMenu(createFunctionKeyMenu(menu));
    menu->popup(copy->mapToGlobal(pos));
}

QMenu* OrvToolBarArea::createFunctionKeyMenu(QMenu* parent)
{
    auto* menu = new QMenu(tr("Function Key"), parent);
    for (auto it = m_functionKeys.cbegin(); it != m_functionKeys.cend(); ++it) {
        QString name = it->name;
        // An '&' in an entry's text is no mnemonic here.
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        const QString text = QStringLiteral("%1%2").arg(
            it->keyName(), name.isEmpty() ? QString() : QStringLiteral(" - %1").arg(name));
        QAction* action = menu->addAction(text);
        action->setData(it.key());
        connect(action, &QAction::triggered, this, &OrvToolBarArea::functionKeyMenuTriggered);
    }
    menu->addSeparator();
    QAction* remove = menu->addAction(tr("Remove Function Key"));
    remove->setData(-1);
    connect(remove, &QAction::triggered, this, &OrvToolBarArea::functionKeyMenuTriggered);
    return menu;
}

void OrvToolBarArea::functionKeyMenuTriggered()
{
    auto* action = qobject_cast<QAction*>(sender());
    if (!action)
        return;
    bool ok = false;
    const int key = action->data().toInt(&ok);
    if (!ok)
        return;
    if (key == -1)
        removeFunctionKey(m_currentIdentifierForContextMenue);
    else if (key > 0)
        setFunctionKey(key, m_currentIdentifierForContextMenue);
}

void OrvToolBarArea::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void OrvToolBarArea::retranslate()
{
    m_ui->retranslateUi(this);
    if (m_dummyLabel)
        m_dummyLabel->setText(tr("Drag menu entries here"));
}

// ---------------------------------------------------------------------------
// Persistence

void OrvToolBarArea::saveSettings()
{
    if (m_saveBlocked > 0)
        return;
    QStringList keys;
    for (auto it = m_functionKeys.cbegin(); it != m_functionKeys.cend(); ++it) {
        if (!it->identifier.isEmpty())
            keys << functionKeyName(it.key()) + QLatin1Char('=') + it->identifier;
    }
    auto* settings = OrvUtils::OperatorSettings::getInstance();
    const QString group = QLatin1String(SettingsGroup);
    settings->setValue(group, QLatin1String(EntriesKey), menuEntries());
    settings->setValue(group, QLatin1String(FunctionKeysKey), keys);
}

QStringList OrvToolBarArea::savedEntries() const
{
    bool clean = true;
    return readSavedEntries(&clean);
}

QMap<int, QString> OrvToolBarArea::savedFunctionKeys() const
{
    bool clean = true;
    return readSavedFunctionKeys(&clean);
}

QStringList OrvToolBarArea::readSavedEntries(bool* clean) const
{
    const QStringList stored = storedStringList(
        OrvUtils::OperatorSettings::getInstance()->value(QLatin1String(SettingsGroup), QLatin1String(EntriesKey)),
        EntriesKey, clean);
    QStringList result;
    QSet<QString> seen;
    for (const QString& identifier : stored) {
        if (identifier.isEmpty() || seen.contains(identifier)) {
            *clean = false;
            qCWarning(lcContainers).noquote() << "OrvToolBarArea: skipping empty or repeated stored entry" << identifier;
            continue;
        }
        seen.insert(identifier);
        result << identifier;
    }
    return result;
}

QMap<int, QString> OrvToolBarArea::readSavedFunctionKeys(bool* clean) const
{
    const QStringList stored = storedStringList(
        OrvUtils::OperatorSettings::getInstance()->value(QLatin1String(SettingsGroup), QLatin1String(FunctionKeysKey)),
        FunctionKeysKey, clean);
    QMap<int, QString> result;
    QSet<QString> bound;
    for (const QString& item : stored) {
        const qsizetype separator = item.indexOf(QLatin1Char('='));
        const int key = separator > 0 ? functionKeyFromName(item.left(separator).trimmed()) : 0;
        const QString identifier = separator > 0 ? item.mid(separator + 1) : QString();
        if (key == 0 || identifier.isEmpty() || result.contains(key) || bound.contains(identifier)) {
            *clean = false;
            qCWarning(lcContainers).noquote() << "OrvToolBarArea: skipping stored function key" << item;
            continue;
        }
        bound.insert(identifier);
        result.insert(key, identifier);
    }
    return result;
}

bool OrvToolBarArea::restoreSettings(const QList<OrvDragIcon*>& availableOriginals)
{
    bool complete = true;
    const QStringList entries = readSavedEntries(&complete);
    const QMap<int, QString> keys = readSavedFunctionKeys(&complete);
    QHash<QString, OrvDragIcon*> byIdentifier;
    byIdentifier.reserve(availableOriginals.size());
    for (OrvDragIcon* original : availableOriginals) {
        if (original && !original->identifier().isEmpty() && !byIdentifier.contains(original->identifier()))
            byIdentifier.insert(original->identifier(), original);
    }

    const SaveBlocker blocker(m_saveBlocked);
    clearToolBarArea();
    for (const QString& identifier : entries) {
        OrvDragIcon* original = byIdentifier.value(identifier);
        if (!original) {
            qCWarning(lcContainers).noquote() << "OrvToolBarArea::restoreSettings: skipping stored entry" << identifier
                                               << "- no such menu entry";
            complete = false;
            continue;
        }
        addMenuEntry(original, nullptr);
    }
    for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
        if (!setFunctionKey(it.key(), it.value()))
            complete = false;
    }
    return complete;
}

} // namespace OrvWidgets
