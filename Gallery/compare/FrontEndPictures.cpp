#include "Gallery/compare/FrontEndPictures.h"

#include "Gallery/frontend/FrontEnd.h"
#include "ResourceFormat/DisplaySize.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QLocale>

namespace Gallery
{

namespace
{

constexpr int settleMilliseconds = 40; // for what front ends do after they have been created

} // namespace

FrontEndPictures::FrontEndPictures(TarnisUi& tarnisUi, const QUrl& qmlFile)
    : ui(tarnisUi)
    , url(qmlFile)
{
    ui.publish();
}

bool FrontEndPictures::canDraw()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("minimal") && platform != QLatin1String("offscreen");
}

QImage FrontEndPictures::draw(const QString& display, const QString& context, const QString& language)
{
    const QSize size = ResourceFormat::DisplaySize::fromName(display);
    ui.setDisplaySize(size);
    ui.setLanguage(language);
    FrontEnd frontEnd(url, size, {{QStringLiteral("context"), context}});
    lastProblem = frontEnd.problem();
    if (!lastProblem.isEmpty())
        return QImage();
    frontEnd.setMirrored(QLocale(language).textDirection() == Qt::RightToLeft);
    for (const QDeadlineTimer settled(settleMilliseconds); !settled.hasExpired();) {
        const int left = static_cast<int>(settled.remainingTime());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, left);
    }
    return frontEnd.picture();
}

QString FrontEndPictures::problem() const
{
    return lastProblem;
}

} // namespace Gallery
