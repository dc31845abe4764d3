#include "orv_wait_dialog.h"

#include "orv_dialog.h"
#include "orv_global_wait_dialog.h"
#include "orv_overlay_loading.h"

namespace OrvWidgets {

OrvWaitDialog::OrvWaitDialog(const QString& text)
{
    OrvGlobalWaitDialog::getInstance()->wait(text);
}

OrvWaitDialog::~OrvWaitDialog()
{
    OrvGlobalWaitDialog::getInstance()->done();
}

Waiter::Waiter(const QString& text)
    : m_global(true)
{
    OrvGlobalWaitDialog::getInstance()->wait(nullptr, text);
}

Waiter::Waiter(OrvDialog* page, const QString& text)
    : m_parent(page)
{
    if (!page) {
        // Without a page the wait is at least shown globally.
        m_global = true;
        OrvGlobalWaitDialog::getInstance()->wait(nullptr, text);
        return;
    }
    m_oldClosableState = page->isClosable();
    page->setClosable(false);
    page->setCurrentlyBlocking(true);
    m_loadingOverlay = new OrvOverlayLoading(nullptr);
    m_loadingOverlay->setText(text.isEmpty() ? tr("Waiting for server reply...") : text);
    page->setOverlay(m_loadingOverlay);
}

// Out of line: the overlay's class is only forward-declared in the header.
OrvOverlayLoading* Waiter::overlay() const
{
    return m_loadingOverlay;
}

Waiter::~Waiter()
{
    if (m_global) {
        OrvGlobalWaitDialog::getInstance()->done();
        return;
    }
    if (m_parent) {
        m_parent->setClosable(m_oldClosableState);
        m_parent->setCurrentlyBlocking(false);
    }
    if (m_loadingOverlay)
        m_loadingOverlay->deleteLater();
}

} // namespace OrvWidgets
