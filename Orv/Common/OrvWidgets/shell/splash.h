#pragma once

#include "orvwidgets_export.h"

#include <QSplashScreen>

namespace OrvWidgets {

// The start-up splash screen, one per process; clicks never close it.
class ORVWIDGETS_EXPORT Splash : public QSplashScreen
{
    Q_OBJECT
public:
    static Splash* getInstance();

    void setMessage(const QString& text);
    // The first call hides the splash and lets the global wait dialog show.
    void done();
    bool isDone() const { return m_done; }

protected:
    bool event(QEvent* event) override;

private:
    Splash();
    ~Splash() override;
    static void cleanupSplashInstance();

    bool m_done = false;
};

} // namespace OrvWidgets
