#pragma once

#include "orvplatform_export.h"

#include <QString>

#include <memory>

namespace Dax {

/*! A thin facade over QLoggingCategory, so that QT_LOGGING_RULES controls every logger:
    "<name>.debug", "<name>.warning" and, for trace, "<name>.trace.debug" (trace is off
    unless enabled by a rule). Loggers live as long as the process. */
class ORVPLATFORM_EXPORT Logger
{
public:
    /*! Loggers are owned by their parent logger. */
    ~Logger();
    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;

    /*! The child named \a name (a full dotted category name such as
        "OrvWidget.OrvDialog"); the same object on every call. */
    Logger& child(const QString& name);
    /*! The category name of this logger. */
    QString name() const;

    /*! True when trace lines are written; test before formatting a costly line. */
    bool isTraceEnabled() const;
    /*! True when debug lines are written. */
    bool isDebugEnabled() const;
    /*! True when warnings are written. */
    bool isWarnEnabled() const;

    /*! Writes \a message as a trace line (a debug message of "<name>.trace"). */
    void trace(const QString& message) const;
    /*! Writes \a message as a debug line. */
    void debug(const QString& message) const;
    /*! Writes \a message as a warning, verbatim. */
    void warn(const QString& message) const;

private:
    friend class DaxLoggerBootstrap;
    explicit Logger(const QString& name);

    struct Private;
    std::unique_ptr<Private> d;
};

/*! Access to the suite's root logger. */
class ORVPLATFORM_EXPORT DaxLoggerBootstrap
{
public:
    /*! The root logger; its children are the loggers of the suite's components. */
    static Logger& getDaxRootLogger();
};

} // namespace Dax
