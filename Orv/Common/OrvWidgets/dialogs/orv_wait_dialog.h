#pragma once

#include "orvwidgets_export.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>

namespace OrvWidgets {

class OrvDialog;
class OrvOverlayLoading;

/// Scope object of a global wait: starts it on construction, ends it on destruction.
class ORVWIDGETS_EXPORT OrvWaitDialog
{
public:
    /*! Starts a global wait with \a text; the destructor ends it. */
    explicit OrvWaitDialog(const QString& text);
    ~OrvWaitDialog();
    OrvWaitDialog(const OrvWaitDialog&) = delete;
    OrvWaitDialog& operator=(const OrvWaitDialog&) = delete;
};

/// Scope object of a wait: globally (text only) or over one page, which then
/// cannot be closed, reports unsaved changes and shows a loading overlay.
class ORVWIDGETS_EXPORT Waiter
{
    Q_DECLARE_TR_FUNCTIONS(Waiter)
public:
    /*! Starts a global wait with \a text; the destructor ends it. */
    explicit Waiter(const QString& text);
    /*! Starts a wait over \a page: the page becomes unclosable, reports unsaved changes and
        shows a loading panel with \a text (empty: "Waiting for server reply..."). The
        destructor restores the page. */
    Waiter(OrvDialog* page, const QString& text);
    ~Waiter();
    Waiter(const Waiter&) = delete;
    Waiter& operator=(const Waiter&) = delete;

    /*! The loading panel over the page; null for a global wait or once the page is gone. */
    OrvOverlayLoading* overlay() const;

private:
    QPointer<OrvOverlayLoading> m_loadingOverlay;
    QPointer<OrvDialog> m_parent;
    bool m_oldClosableState = false;
    bool m_global = false;
};

} // namespace OrvWidgets
