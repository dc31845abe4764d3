#pragma once

#include "orvplatform_export.h"

#include <QObject>

namespace OrvSessionData {

// Process-wide session state of the logged-in operator: rights and device kind.
class ORVPLATFORM_EXPORT OrvSessionData : public QObject
{
    Q_OBJECT
public:
    static OrvSessionData* getInstance();

    // Right 0 is always granted; otherwise every bit of the right must be held.
    bool hasOperatorRight(int right) const;
    void setOperatorRights(int rights);
    int operatorRights() const;

    bool isTablet() const;
    void setTablet(bool tablet);

Q_SIGNALS:
    void operatorRightsChanged(int rights);
    void tabletChanged(bool tablet);

private:
    OrvSessionData() = default;

    int m_rights = 0;
    bool m_tablet = false;
};

} // namespace OrvSessionData
