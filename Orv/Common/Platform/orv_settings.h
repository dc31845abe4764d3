#pragma once

#include "orvplatform_export.h"

#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

/*! Settings of the operator and of the project deployment. */
namespace OrvUtils {

/*! Group/key settings stored in an INI file. A missing, unreadable or corrupt file
    yields the defaults and one warning; it never stops the application. */
class ORVPLATFORM_EXPORT Settings
{
public:
    /*! Settings without a file until setFileName() is called: values are the defaults. */
    Settings();
    /*! Settings stored in the INI file \a iniPath, read on first access. */
    explicit Settings(const QString& iniPath);
    /*! Writes pending changes to the file. */
    virtual ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    /*! The value of \a key in \a group, or \a defaultValue when it is not stored or the
        file cannot be read. */
    QVariant value(const QString& group, const QString& key, const QVariant& defaultValue = {}) const;
    /*! Stores \a value under \a key in \a group; an empty key is refused with a warning. */
    void setValue(const QString& group, const QString& key, const QVariant& value);
    /*! Removes \a key from \a group; nothing happens when it is not stored. */
    void remove(const QString& group, const QString& key);

    /*! Redirects storage to \a iniPath (tests, deployments); the next access reads the
        new file. */
    void setFileName(const QString& iniPath);
    /*! The INI file the settings are stored in. */
    QString fileName() const;

    /*! Writes pending changes to disk now (they are also written on destruction). */
    void sync();

private:
    QSettings* settings() const;

    QString m_fileName;
    mutable std::unique_ptr<QSettings> m_settings;
    mutable bool m_usable = true;
};

/*! Settings of the logged-in operator ("TimeSettings", "ToolBar", ...), stored in
    \c operator.ini of the application's configuration folder or in the file that the
    environment variable \c ORV_OPERATOR_SETTINGS names. */
class ORVPLATFORM_EXPORT OperatorSettings : public Settings
{
public:
    /*! The one instance of the process; never null. */
    static OperatorSettings* getInstance();

private:
    OperatorSettings();
};

/*! Settings of the project deployment ("exm", ...), stored in \c project.ini of the
    application's configuration folder or in the file that \c ORV_PROJECT_SETTINGS names. */
class ORVPLATFORM_EXPORT ProjectSettings : public Settings
{
public:
    /*! The one instance of the process; never null. */
    static ProjectSettings* getInstance();

private:
    ProjectSettings();
};

} // namespace OrvUtils
