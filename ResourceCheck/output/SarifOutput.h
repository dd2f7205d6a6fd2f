#pragma once

#include "ResourceCheck/Finding.h"

#include <QByteArray>
#include <QVector>

/// The findings in the Static Analysis Results Interchange Format, version 2.1.0, with every rule that there is.
QByteArray sarifOutput(const QVector<Finding>& findings);
