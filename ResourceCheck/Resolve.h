#pragma once

#include <QStringList>

namespace ResourceCheck
{

/// The questions that resolve() answers, one per line.
QString resolveUsage();

/// What is wrong with the question and what to do; null if nothing is wrong.
QString questionProblem(const QStringList& question);

/// Asks the library what it would answer if a service published the directory. Prints the answer, and how the library
/// finds it, to the standard output. Returns whether there is an answer. questionProblem() must be null for the
/// question, and a QGuiApplication must exist.
bool resolve(const QString& directory, const QStringList& question);

} // namespace ResourceCheck
