#include "orv_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>

Q_LOGGING_CATEGORY(lcSettings, "orv.platform.settings")

namespace OrvUtils {
namespace {

QString defaultPath(const char* fileName, const char* envName)
{
    const QString fromEnv = qEnvironmentVariable(envName);
    if (!fromEnv.isEmpty())
        return fromEnv;
    QString dir = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    if (dir.isEmpty())
        dir = QDir::homePath() + QStringLiteral("/.config/orv");
    return dir + QLatin1Char('/') + QLatin1String(fileName);
}

QString fullKey(const QString& group, const QString& key)
{
    return group.isEmpty() ? key : group + QLatin1Char('/') + key;
}

} // namespace

Settings::Settings() = default;

Settings::Settings(const QString& iniPath)
    : m_fileName(iniPath)
{
}

Settings::~Settings() = default;

QSettings* Settings::settings() const
{
    if (!m_settings) {
        m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
        m_usable = true;
        const QFileInfo info(m_fileName);
        if (info.exists() && !info.isReadable()) {
            qCWarning(lcSettings).noquote() << "OrvUtils::Settings: cannot read" << m_fileName << "- using defaults";
            m_usable = false;
        } else if (m_settings->status() != QSettings::NoError) {
            qCWarning(lcSettings).noquote() << "OrvUtils::Settings: corrupt settings file" << m_fileName << "- using defaults";
            m_usable = false;
        }
    }
    return m_settings.get();
}

QVariant Settings::value(const QString& group, const QString& key, const QVariant& defaultValue) const
{
    QSettings* s = settings();
    if (!m_usable || key.isEmpty())
        return defaultValue;
    return s->value(fullKey(group, key), defaultValue);
}

void Settings::setValue(const QString& group, const QString& key, const QVariant& value)
{
    if (key.isEmpty()) {
        qCWarning(lcSettings) << "OrvUtils::Settings::setValue: empty key in group" << group;
        return;
    }
    QSettings* s = settings();
    if (!m_usable) {
        // Start afresh rather than keep reading a broken file.
        s->clear();
        m_usable = true;
    }
    s->setValue(fullKey(group, key), value);
}

void Settings::remove(const QString& group, const QString& key)
{
    settings()->remove(fullKey(group, key));
}

void Settings::setFileName(const QString& iniPath)
{
    if (m_settings)
        m_settings->sync();
    m_settings.reset();
    m_fileName = iniPath;
}

QString Settings::fileName() const
{
    return m_fileName;
}

void Settings::sync()
{
    if (m_settings)
        m_settings->sync();
}

OperatorSettings::OperatorSettings()
    : Settings(defaultPath("operator.ini", "ORV_OPERATOR_SETTINGS"))
{
}

OperatorSettings* OperatorSettings::getInstance()
{
    static OperatorSettings instance;
    return &instance;
}

ProjectSettings::ProjectSettings()
    : Settings(defaultPath("project.ini", "ORV_PROJECT_SETTINGS"))
{
}

ProjectSettings* ProjectSettings::getInstance()
{
    static ProjectSettings instance;
    return &instance;
}

} // namespace OrvUtils
