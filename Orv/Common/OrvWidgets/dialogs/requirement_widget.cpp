#include "requirement_widget.h"

#include "orv_message_dialog.h"

#include <QCoreApplication>

namespace OrvWidgets {

namespace {
const QString& decoratedPrefix()
{
    static const QString prefix = QStringLiteral("\u2022 ");
    return prefix;
}

QString satisfiedText(const QString& text)
{
    return QStringLiteral("\u2022 %1").arg(text);
}

QString failedText(const QString& text)
{
    return QStringLiteral("<span style=\"color:#aa0000;\">\u2022 %1</span>").arg(text);
}
} // namespace

UiRequirement::UiRequirement(QLabel* label, const std::function<bool()>& check, const QString& userWarningMessage)
    : m_descriptionLabel(label)
    , m_requirementCheck(check)
    , m_lastResult(true)
    , m_userWarningMessage(userWarningMessage)
{
    retranslate();
}

bool UiRequirement::isValid() const
{
    return !m_descriptionLabel.isNull();
}

bool UiRequirement::checkRequirement()
{
    if (!isValid())
        return m_lastResult;
    m_lastResult = m_requirementCheck ? m_requirementCheck() : true;
    // The check may have taken the label down with it.
    if (!isValid())
        return m_lastResult;
    if (!m_descriptionLabel->isVisible() && !m_descriptionLabel->property("checkMe").toBool())
        return true;
    setTexts();
    return m_lastResult;
}

void UiRequirement::reset()
{
    if (!isValid())
        return;
    m_descriptionLabel->setText(m_originalText);
    m_descriptionLabel->setToolTip(m_originalTooltip);
}

void UiRequirement::retranslate()
{
    if (!isValid() || m_originalText.startsWith(decoratedPrefix()))
        return;
    const QString current = m_descriptionLabel->text();
    // Our own red form is not a fresh translation either.
    if (current.startsWith(decoratedPrefix()) || (!m_originalText.isEmpty() && current == failedText(m_originalText)))
        return;
    m_originalText = current;
    // Nor is the warning we show on a failed label: that label keeps its own tooltip.
    const QString tooltip = m_descriptionLabel->toolTip();
    if (m_lastResult || m_userWarningMessage.isEmpty() || tooltip != m_userWarningMessage)
        m_originalTooltip = tooltip;
    setTexts();
}

void UiRequirement::setTexts()
{
    if (!isValid())
        return;
    if (m_lastResult) {
        if (m_originalText.startsWith(decoratedPrefix()))
            return;
        m_descriptionLabel->setText(satisfiedText(m_originalText));
        m_descriptionLabel->setCursor(Qt::ArrowCursor);
        m_descriptionLabel->setToolTip(m_originalTooltip);
        return;
    }
    m_descriptionLabel->setText(failedText(m_originalText));
    if (m_userWarningMessage.isEmpty())
        return;
    m_descriptionLabel->setCursor(Qt::WhatsThisCursor);
    m_descriptionLabel->setToolTip(m_userWarningMessage);
}

void UiRequirementList::addRequirement(const UiRequirement& requirement)
{
    m_requirementList.append(requirement);
}

bool UiRequirementList::checkRequirements(QWidget* parent)
{
    bool allPassed = true;
    // Every requirement is checked, so that every failing label is marked.
    for (UiRequirement& requirement : m_requirementList) {
        if (requirement.isValid() && !requirement.checkRequirement())
            allPassed = false;
    }
    if (!allPassed && parent) {
        // Last statement: the parent (and this list with it) may be gone when
        // the question returns.
        OrvMessageDialog::showMessage(
            parent,
            QCoreApplication::translate("OrvWidgets::OrvDialog",
                                        "There are elements that have invalid or no value.<br>Please change values "
                                        "in the elements which are marked with red text."),
            QCoreApplication::translate("OrvWidgets::OrvDialog", "Operation not complete"),
            OrvFramelessDialog::Modal, OrvMessageDialog::Ok);
    }
    return allPassed;
}

void UiRequirementList::clear()
{
    for (UiRequirement& requirement : m_requirementList)
        requirement.reset();
    m_requirementList.clear();
}

void UiRequirementList::retranslate()
{
    for (UiRequirement& requirement : m_requirementList)
        requirement.retranslate();
}

} // namespace OrvWidgets
