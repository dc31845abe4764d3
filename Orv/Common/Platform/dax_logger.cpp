#include "dax_logger.h"

#include <QHash>
#include <QLoggingCategory>

namespace Dax {

struct Logger::Private
{
    QString name;
    QByteArray categoryName;      // QLoggingCategory keeps the pointer: owned here
    QByteArray traceCategoryName;
    std::unique_ptr<QLoggingCategory> category;
    std::unique_ptr<QLoggingCategory> traceCategory;
    QHash<QString, Logger*> children;
};

Logger::Logger(const QString& name)
    : d(std::make_unique<Private>())
{
    d->name = name;
    d->categoryName = name.toUtf8();
    d->traceCategoryName = d->categoryName + ".trace";
    d->category = std::make_unique<QLoggingCategory>(d->categoryName.constData(), QtDebugMsg);
    d->traceCategory = std::make_unique<QLoggingCategory>(d->traceCategoryName.constData(), QtInfoMsg);
}

Logger::~Logger()
{
    qDeleteAll(d->children);
}

Logger& Logger::child(const QString& name)
{
    // Loggers are created on the GUI thread by the widgets that use them.
    Logger*& slot = d->children[name];
    if (!slot)
        slot = new Logger(name);
    return *slot;
}

QString Logger::name() const
{
    return d->name;
}

bool Logger::isTraceEnabled() const
{
    return d->traceCategory->isDebugEnabled();
}

bool Logger::isDebugEnabled() const
{
    return d->category->isDebugEnabled();
}

bool Logger::isWarnEnabled() const
{
    return d->category->isWarningEnabled();
}

void Logger::trace(const QString& message) const
{
    if (isTraceEnabled())
        QMessageLogger(nullptr, 0, nullptr, d->traceCategoryName.constData()).debug().noquote() << message;
}

void Logger::debug(const QString& message) const
{
    if (isDebugEnabled())
        QMessageLogger(nullptr, 0, nullptr, d->categoryName.constData()).debug().noquote() << message;
}

void Logger::warn(const QString& message) const
{
    if (isWarnEnabled())
        QMessageLogger(nullptr, 0, nullptr, d->categoryName.constData()).warning().noquote() << message;
}

Logger& DaxLoggerBootstrap::getDaxRootLogger()
{
    static Logger* root = new Logger(QStringLiteral("Dax"));
    return *root;
}

} // namespace Dax
