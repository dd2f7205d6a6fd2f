#pragma once

#include <QStringList>

/// The questions that resolve() answers, one a line.
QString resolveUsage();

/// What is wrong with the question, as a sentence that says what is allowed; null if nothing is.
QString questionProblem(const QStringList& question);

/// Asks the library what it would answer if a service published the directory, and prints that, and how it comes to it,
/// to the standard output stream. Returns whether there is an answer. The question must be without a problem, and a
/// QGuiApplication must exist.
bool resolve(const QString& directory, const QStringList& question);
