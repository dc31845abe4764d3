#pragma once

#include "orvwidgets_export.h"

#include <QLabel>
#include <QList>
#include <QPointer>
#include <QString>

#include <functional>

class QWidget;

namespace OrvWidgets {

// Ties a describing label on a page to a check that must hold before the page
// may apply. Failed requirements show their label in red with a bullet.
class ORVWIDGETS_EXPORT UiRequirement
{
public:
    UiRequirement() = default;
    UiRequirement(QLabel* label, const std::function<bool()>& check, const QString& userWarningMessage);

    bool isValid() const;
    bool checkRequirement();
    void reset();
    void retranslate();

private:
    void setTexts();

    // Guarded: a label deleted by its page must not leave a dangling pointer.
    QPointer<QLabel> m_descriptionLabel;
    std::function<bool()> m_requirementCheck;
    QString m_originalText;
    QString m_originalTooltip;
    bool m_lastResult = true;
    QString m_userWarningMessage;
};

class ORVWIDGETS_EXPORT UiRequirementList
{
public:
    void addRequirement(const UiRequirement& requirement);
    // Checks every requirement and, if any failed and parent is set, tells the
    // user once. True only when all passed.
    bool checkRequirements(QWidget* parent);
    void clear();
    void retranslate();

private:
    QList<UiRequirement> m_requirementList;
};

} // namespace OrvWidgets
