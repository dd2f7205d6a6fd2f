#pragma once

#include <QString>

enum class Severity { Off, Warning, Error };

/// Where something stands. Lines and columns count from 1, columns in characters; 0 means all of it.
struct Place {
    QString path;
    int line = 0;
    int column = 0;
};

/// One fault that a rule has found.
struct Finding {
    QString rule;
    Severity severity;
    Place place;
    QString message;
};
