#include "Gallery/frontend/FrontEnd.h"

#include "QmlHost/Ui.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QResizeEvent>
#include <QScreen>

#include <private/qquickwindow_p.h>

namespace Gallery
{

FrontEnd::FrontEnd(const QUrl& url, const QSize& displaySize, const QVariantMap& properties)
{
    recorder.follow(engine);
    connect(&engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError>& found) { warnings += found; });
    QQmlComponent component(&engine, url);
    if (component.isReady())
        create(component, properties);
    errors += component.errors();
    if (component.isLoading() || (object == nullptr && errors.isEmpty())) {
        QQmlError error;
        error.setUrl(url);
        error.setDescription(QStringLiteral("it cannot be loaded; use files of this machine only"));
        errors.append(error);
    }
    if (shownWindow == nullptr)
        return;
    if (object == shownWindow)
        ownSize = shownWindow->size();
    resize(displaySize);
    picture(); // lays out the items
    findFailedLoaders();
}

FrontEnd::~FrontEnd()
{
    disconnect(&engine, nullptr, this, nullptr);
    if (shownWindow != nullptr)
        disconnect(shownWindow, nullptr, this, nullptr);
    delete object;
}

QString FrontEnd::problem() const
{
    QStringList lines;
    for (const QQmlError& error : errors) {
        const QString file = error.url().isLocalFile() ? error.url().toLocalFile() : error.url().toString();
        lines.append(QStringLiteral("%1:%2: %3").arg(file).arg(qMax(1, error.line())).arg(error.description()));
    }
    return lines.join(QLatin1Char('\n'));
}

QQuickWindow* FrontEnd::window() const
{
    return shownWindow;
}

QObject* FrontEnd::root() const
{
    return object;
}

QStringList FrontEnd::files() const
{
    return recorder.files();
}

void FrontEnd::resize(const QSize& displaySize)
{
    QSize size = displaySize.isValid() ? displaySize : ownSize;
    if (size.isEmpty())
        size = nearestDisplaySize();
    shownWindow->resize(size);
    spreadSize();
}

void FrontEnd::set(const QString& property, const QVariant& value)
{
    const QByteArray name = property.toLatin1();
    if (object != nullptr && object->metaObject()->indexOfProperty(name.constData()) >= 0)
        object->setProperty(name.constData(), value);
}

void FrontEnd::setMirrored(bool isMirrored)
{
    // The attached property is found by its name in a context that imports Qt Quick.
    QQmlComponent component(&engine);
    component.setData("import QtQml 2.15\nimport QtQuick 2.15\nQtObject {}", QUrl());
    const std::unique_ptr<QObject> importer(component.create());
    for (const char* const name : {"LayoutMirroring.enabled", "LayoutMirroring.childrenInherit"})
        QQmlProperty::write(shownWindow->contentItem(), QLatin1String(name), isMirrored, qmlContext(importer.get()));
}

QImage FrontEnd::picture()
{
    QQuickWindowPrivate::get(shownWindow)->flushFrameSynchronousEvents();
    QImage image = shownWindow->grabWindow();
    image.setDevicePixelRatio(shownWindow->effectiveDevicePixelRatio());
    Q_EMIT drawn();
    return image;
}

bool FrontEnd::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::UpdateRequest)
        Q_EMIT updateRequested();
    return QObject::eventFilter(watched, event);
}

void FrontEnd::create(QQmlComponent& component, const QVariantMap& properties)
{
    object = component.beginCreate(engine.rootContext());
    if (object == nullptr)
        return;
    for (auto property = properties.begin(); property != properties.end(); ++property)
        set(property.key(), property.value());
    adopt();
    component.completeCreate();
    if (shownWindow == nullptr) {
        QQmlError error;
        error.setUrl(component.url());
        error.setDescription(QStringLiteral("the root object is neither an Item nor a Window; make it one of them"));
        errors.append(error);
    }
}

void FrontEnd::adopt()
{
    shownWindow = qobject_cast<QQuickWindow*>(object);
    if (shownWindow != nullptr) {
        followWindow();
        return;
    }
    auto* const item = qobject_cast<QQuickItem*>(object);
    if (item == nullptr)
        return;
    itemWindow = std::make_unique<QQuickWindow>();
    shownWindow = itemWindow.get();
    followWindow();
    item->setParentItem(shownWindow->contentItem());
    resize(QSize());
}

void FrontEnd::followWindow()
{
    shownWindow->setParent(&host);
    shownWindow->installEventFilter(this);
    connect(shownWindow, &QWindow::widthChanged, this, &FrontEnd::spreadSize);
    connect(shownWindow, &QWindow::heightChanged, this, &FrontEnd::spreadSize);
}

// The window system tells only shown windows that their size has changed.
void FrontEnd::spreadSize()
{
    QResizeEvent event(shownWindow->size(), QSize());
    QCoreApplication::sendEvent(shownWindow, &event);
    if (itemWindow != nullptr)
        qobject_cast<QQuickItem*>(object)->setSize(shownWindow->size());
    Q_EMIT sizeChanged();
}

void FrontEnd::findFailedLoaders()
{
    constexpr int failed = 3; // Loader.Error
    QList<QQuickItem*> items{shownWindow->contentItem()};
    for (int index = 0; index < items.size(); ++index) {
        const QQuickItem* const item = items.at(index);
        if (item->inherits("QQuickLoader") && item->property("status").toInt() == failed) {
            errors += warnings;
            return;
        }
        items += item->childItems();
    }
}

QSize FrontEnd::nearestDisplaySize()
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    auto* const ui = engine.singletonInstance<QmlHost::Ui*>(qmlTypeId("Tarnis", 1, 0, "Ui"));
    const QSize nearest = ui == nullptr ? QSize() : ui->dimensions()->nearestNeighbourScreenSize(screen).first;
    return nearest.isEmpty() ? screen : nearest;
}

} // namespace Gallery
