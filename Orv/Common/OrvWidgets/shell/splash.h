#pragma once

#include "orvwidgets_export.h"

#include <QSplashScreen>

namespace OrvWidgets {

/// The start-up splash screen, one per process; clicks never close it.
class ORVWIDGETS_EXPORT Splash : public QSplashScreen
{
    Q_OBJECT
public:
    /*! The one splash of the process, created on first use (showing :/project/splash.png or
        .jpg) and deleted at application shutdown. */
    static Splash* getInstance();

    /*! Shows \a text at the bottom of the splash. */
    void setMessage(const QString& text);
    /// The first call hides the splash and lets the global wait dialog show.
    void done();
    /*! True once done() was called. */
    bool isDone() const { return m_done; }

protected:
    /*! \reimp */
    bool event(QEvent* event) override;

private:
    Splash();
    ~Splash() override;
    static void cleanupSplashInstance();

    bool m_done = false;
};

} // namespace OrvWidgets
