#include "splash.h"

#include "orv_global_wait_dialog.h"

#include <QCoreApplication>
#include <QFile>

namespace OrvWidgets {

namespace {
Splash* s_splash = nullptr;
}

Splash* Splash::getInstance()
{
    if (!s_splash) {
        s_splash = new Splash;
        qAddPostRoutine(&Splash::cleanupSplashInstance);
    }
    return s_splash;
}

void Splash::cleanupSplashInstance()
{
    delete s_splash;
    s_splash = nullptr;
}

Splash::Splash()
    : QSplashScreen(QPixmap())
{
    for (const char* path : {":/project/splash.png", ":/project/splash.jpg"}) {
        if (QFile::exists(QLatin1String(path))) {
            setPixmap(QPixmap(QLatin1String(path)));
            break;
        }
    }
}

Splash::~Splash() = default;

void Splash::setMessage(const QString& text)
{
    showMessage(text, Qt::AlignRight | Qt::AlignBottom, Qt::black);
}

void Splash::done()
{
    if (m_done)
        return;
    m_done = true;
    hide();
    OrvGlobalWaitDialog::getInstance()->setVisible(true);
}

bool Splash::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        event->ignore();
        return false;
    default:
        return QSplashScreen::event(event);
    }
}

} // namespace OrvWidgets
