#pragma once

#include <QByteArray>
#include <QStringList>

/// Tells whether files have changed.
namespace QmlHost::Fingerprint
{

/// Path, device, inode, size and time of modification of every file; missing files count too. Two fingerprints are
/// equal if none of these has changed. Never null.
QByteArray of(const QStringList& paths);

} // namespace QmlHost::Fingerprint
