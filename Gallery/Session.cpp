#include "Gallery/Session.h"

#include <QtQml>

namespace Gallery
{

Session::Session(const QString& language)
    : resources(language)
    , catalog(resources)
    , view(resources, log)
{
}

void Session::publish()
{
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Ui", &resources);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Catalog", &catalog);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "View", &view);
    qmlRegisterSingletonInstance("Tarnis", 1, 0, "Log", &log);
}

} // namespace Gallery
