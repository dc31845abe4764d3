#pragma once

#include "orvplatform_export.h"

#include <QObject>

/*! Session state of the logged-in operator. */
namespace OrvSessionData {

/*! Process-wide session state of the logged-in operator: rights and device kind.
    Applications set it at log-in; widgets read it (menu entries that need a right,
    touch-sized controls on tablets). */
class ORVPLATFORM_EXPORT OrvSessionData : public QObject
{
    Q_OBJECT
public:
    /*! The one instance of the process; never null, never deleted. */
    static OrvSessionData* getInstance();

    /*! True when the operator holds \a right: right 0 is always granted, otherwise every
        bit of \a right must be among the operator's rights. */
    bool hasOperatorRight(int right) const;
    /*! Sets the operator's rights as a bit set (0, the default, is no right); emits
        operatorRightsChanged() when they change. */
    void setOperatorRights(int rights);
    /*! The operator's rights as a bit set. */
    int operatorRights() const;

    /*! True on a touch panel session (false by default). */
    bool isTablet() const;
    /*! Marks the session as a touch panel session; emits tabletChanged() on a change. */
    void setTablet(bool tablet);

Q_SIGNALS:
    /*! Emitted when setOperatorRights() changed the rights to \a rights. */
    void operatorRightsChanged(int rights);
    /*! Emitted when setTablet() changed the session kind. */
    void tabletChanged(bool tablet);

private:
    OrvSessionData() = default;

    int m_rights = 0;
    bool m_tablet = false;
};

} // namespace OrvSessionData
