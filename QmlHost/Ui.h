#pragma once

#include "QmlHost/Resources.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QPointer>
#include <QQmlEngine>
#include <QVector>

class QScreen;

namespace QmlHost
{

/// The QML singleton `Ui` of the module `Tarnis`, one for each engine, with separate handlers. The engine owns it.
///
/// A handler is built, and its files are read, when it is first asked for. When its files or the primary screen change,
/// it is released: the property then has another one, built from the new answers. All are released before the first
/// signal. From then on the engine's garbage collector owns the old handler, so scripts may keep it. C++ code must not:
/// it reads the property again after the signal.
class Ui : public QObject
{
    Q_OBJECT

    Q_PROPERTY(TarnisColorHandler* colors READ colors NOTIFY colorsChanged)
    Q_PROPERTY(TarnisFontHandler* fonts READ fonts NOTIFY fontsChanged)
    Q_PROPERTY(TarnisElementDimensionHandler* dimensions READ dimensions NOTIFY dimensionsChanged)
    Q_PROPERTY(TarnisTextHandler* texts READ texts NOTIFY textsChanged)
    Q_PROPERTY(TarnisIconHandler* icons READ icons NOTIFY iconsChanged)
    /// The language of the texts, for every engine.
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    /// The languages to choose from, sorted. Empty if the texts come from the host.
    Q_PROPERTY(QStringList languages READ languages NOTIFY languagesChanged)
    /// Whether there has been an answer. Until then lookups are empty and log nothing.
    Q_PROPERTY(bool ready READ isReady NOTIFY readyChanged)
    /// Why the last question was not answered completely; empty if it was.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)

public:
    /// The object lives as long as the engine. Without the resources it keeps its handlers, and nothing changes.
    Ui(Resources& sharedResources, QQmlEngine& qmlEngine);

    TarnisColorHandler* colors();
    TarnisFontHandler* fonts();
    TarnisElementDimensionHandler* dimensions();
    TarnisTextHandler* texts();
    TarnisIconHandler* icons();
    QString language() const;
    void setLanguage(const QString& name);
    QStringList languages() const;
    bool isReady() const;
    QString problem() const;

Q_SIGNALS:
    void colorsChanged();
    void fontsChanged();
    void dimensionsChanged();
    void textsChanged();
    void iconsChanged();
    void languageChanged();
    void languagesChanged();
    void readyChanged();
    void problemChanged();

private:
    void takeAnswers();
    void announceAnswers();
    void followDisplaySize();
    void followScreen(const QScreen* screen);
    void followLanguage();
    TarnisTextHandler* newTexts();
    template <typename Handler>
    void releaseIf(bool isOutdated, Handler*& handler, void (Ui::*signal)());
    template <typename Handler>
    void release(Handler*& handler);

    QPointer<Resources> resources;
    QQmlEngine& engine;
    Answers answers;                       // that the handlers are built from
    QVector<void (Ui::*)()> signalsToEmit; // of the handlers that were released
    TarnisColorHandler* colorHandler = nullptr;
    TarnisFontHandler* fontHandler = nullptr;
    TarnisElementDimensionHandler* dimensionHandler = nullptr;
    TarnisIconHandler* iconHandler = nullptr;
    TarnisTextHandler* textHandler = nullptr;
    QPointer<TextManager> ownTextManager; // child of the text handler, unless the texts come from the host
};

} // namespace QmlHost
