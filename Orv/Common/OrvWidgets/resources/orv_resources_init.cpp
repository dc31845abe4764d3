// Makes the library's own pictures reachable through the "icon:" prefix
// (for example "icon:no_pic.svg"). Runs when the application object is created,
// or at once when the library is loaded into a running application. Paths the
// application registers itself stay in place: this only adds.

#include <QCoreApplication>
#include <QDir>

namespace {

void orvRegisterIconSearchPath()
{
    const QString prefix = QStringLiteral("icon");
    const QString path = QStringLiteral(":/icon");
    // Startup functions run again for every new application object.
    if (!QDir::searchPaths(prefix).contains(path))
        QDir::addSearchPath(prefix, path);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(orvRegisterIconSearchPath)
