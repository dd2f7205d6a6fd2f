#pragma once

#include <QtTest>

namespace Tests
{

/// Adds the rows of the file `tests/data/TEST/FUNCTION.json` to a data-driven test: an array of objects, each with a
/// "name" of its own and exactly the given fields, whose values have the same types in every row. Anything else ends
/// the test program, so that a misspelled field or a lost file never passes as a test with fewer checks.
inline void addRows(QStringList fields)
{
    const QString test = QString(QTest::testObject()->metaObject()->className()).section("::", -1);
    QFile data(TEST_DATA "/" + test + '/' + QTest::currentTestFunction() + ".json");
    data.open(QIODevice::ReadOnly);
    const QJsonArray rows = QJsonDocument::fromJson(data.readAll()).array();
    if (rows.isEmpty())
        qFatal("%s: cannot read a JSON array with at least one row", qPrintable(data.fileName()));
    fields.append("name");
    fields.sort();
    QStringList names;
    QTest::addColumn<QJsonObject>("row");
    for (const QJsonValue row : rows) {
        const QString name = row["name"].toString();
        bool isGood = row.toObject().keys() == fields && !name.isEmpty() && !names.contains(name);
        for (const QString& field : qAsConst(fields))
            isGood &= row[field].type() == rows.at(0)[field].type();
        if (!isGood)
            qFatal("%s: row \"%s\" must have a unique name and the fields %s, with the types of the first row",
                   qPrintable(data.fileName()), qPrintable(name), qPrintable(fields.join(", ")));
        names.append(name);
        QTest::newRow(qPrintable(name)) << row.toObject();
    }
}

/// The row that the test is called for.
inline QJsonObject row()
{
    QFETCH(QJsonObject, row);
    return row;
}

/// The texts of a field that is an array of them.
inline QStringList rowTexts(const QString& field)
{
    return row()[field].toVariant().toStringList();
}

/// A map or list as a text that a failed comparison can print.
inline QString toJson(const QVariant& value)
{
    return QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact));
}

} // namespace Tests
