// A minimal application built against the installed package.
#include <OrvWidgets>
#include <orv_message_dialog.h>

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (DTG::toStringMSec(0, DTG::eShort) != QLatin1String("010000Z"))
        return 2;
    if (OrvWidgets::OrvLinkEvent::eventTypeId() < QEvent::User)
        return 3;
    if (!OrvSessionData::OrvSessionData::getInstance()->hasOperatorRight(0))
        return 4;
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->isVisible())
                w->close();
    });
    const auto answer = OrvWidgets::OrvMessageDialog::showMessage(nullptr, QStringLiteral("consumer"));
    return answer == OrvWidgets::OrvMessageDialog::Cancel ? 0 : 5;
}
