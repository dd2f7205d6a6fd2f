#pragma once

#include <QString>
#include <QStringList>

/// Names of languages, which are locale names (`en`, `de_AT`, `zh_Hans`), and of their files.
namespace ResourceFormat::Language
{

/// The language that has every text, and that every other one falls back to: `en`.
QString secondFallback();

/// The languages in which a text is looked up, in this order: the language itself, the language without its territory,
/// the second fallback. Each is listed once.
QStringList fallbackChain(const QString& language);

/// `de.json` for `de`.
QString fileName(const QString& language);

/// `de` for `de.json`; the name itself if it has no such ending.
QString ofFile(const QString& fileName);

} // namespace ResourceFormat::Language
