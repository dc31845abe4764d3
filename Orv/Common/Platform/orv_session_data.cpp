#include "orv_session_data.h"

#include <QCoreApplication>

namespace OrvSessionData {

OrvSessionData* OrvSessionData::getInstance()
{
    // Leaked on purpose: widgets may ask for rights while the application tears down.
    static OrvSessionData* instance = new OrvSessionData;
    return instance;
}

bool OrvSessionData::hasOperatorRight(int right) const
{
    return right == 0 || (m_rights & right) == right;
}

void OrvSessionData::setOperatorRights(int rights)
{
    if (m_rights == rights)
        return;
    m_rights = rights;
    Q_EMIT operatorRightsChanged(rights);
}

int OrvSessionData::operatorRights() const
{
    return m_rights;
}

bool OrvSessionData::isTablet() const
{
    return m_tablet;
}

void OrvSessionData::setTablet(bool tablet)
{
    if (m_tablet == tablet)
        return;
    m_tablet = tablet;
    Q_EMIT tabletChanged(tablet);
}

} // namespace OrvSessionData
