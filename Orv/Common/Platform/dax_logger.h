#pragma once

#include "orvplatform_export.h"

#include <QString>

#include <memory>

namespace Dax {

// A thin facade over QLoggingCategory, so that QT_LOGGING_RULES controls every
// logger: "<name>.debug", "<name>.warning" and, for trace, "<name>.trace.debug"
// (trace is off unless enabled by a rule).
class ORVPLATFORM_EXPORT Logger
{
public:
    ~Logger();
    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;

    // The child named "name" (a full dotted category name such as
    // "OrvWidget.OrvDialog"); the same object on every call.
    Logger& child(const QString& name);
    QString name() const;

    bool isTraceEnabled() const;
    bool isDebugEnabled() const;
    bool isWarnEnabled() const;

    void trace(const QString& message) const;
    void debug(const QString& message) const;
    void warn(const QString& message) const;

private:
    friend class DaxLoggerBootstrap;
    explicit Logger(const QString& name);

    struct Private;
    std::unique_ptr<Private> d;
};

class ORVPLATFORM_EXPORT DaxLoggerBootstrap
{
public:
    static Logger& getDaxRootLogger();
};

} // namespace Dax
