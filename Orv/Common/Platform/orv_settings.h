#pragma once

#include "orvplatform_export.h"

#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

namespace OrvUtils {

// Group/key settings stored in an INI file. A missing, unreadable or corrupt
// file yields the defaults and one warning; it never stops the application.
class ORVPLATFORM_EXPORT Settings
{
public:
    Settings();
    explicit Settings(const QString& iniPath);
    virtual ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    QVariant value(const QString& group, const QString& key, const QVariant& defaultValue = {}) const;
    void setValue(const QString& group, const QString& key, const QVariant& value);
    void remove(const QString& group, const QString& key);

    // Redirects storage (tests, deployments); the next access reads the new file.
    void setFileName(const QString& iniPath);
    QString fileName() const;

    // Writes pending changes to disk now (they are also written on destruction).
    void sync();

private:
    QSettings* settings() const;

    QString m_fileName;
    mutable std::unique_ptr<QSettings> m_settings;
    mutable bool m_usable = true;
};

// Settings of the logged-in operator ("TimeSettings", "ToolBar", ...).
class ORVPLATFORM_EXPORT OperatorSettings : public Settings
{
public:
    static OperatorSettings* getInstance();

private:
    OperatorSettings();
};

// Settings of the project deployment ("exm", ...).
class ORVPLATFORM_EXPORT ProjectSettings : public Settings
{
public:
    static ProjectSettings* getInstance();

private:
    ProjectSettings();
};

} // namespace OrvUtils
