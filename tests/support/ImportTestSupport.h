#pragma once

#include "TestSupport.h"

#include <QFile>
#include <QTest>

namespace tb::test {

// The descriptions of all elements, in order.
inline QStringList Cast(const ScheduleDocument &doc)
{
    QStringList names;
    for (int j = 1; j <= doc.elements.count(); ++j)
        names.append(doc.elements[j][ElementField::Description]);
    return names;
}

// One field of every strip, in board order.
inline QStringList StripColumn(const ScheduleDocument &doc, StripField field)
{
    QStringList values;
    for (int row = 1; row <= doc.strips.count(); ++row)
        values.append(doc.strips[row][field]);
    return values;
}

// Writes a file in the test's temporary folder and returns its path.
inline QString WriteFile(const QString &name, const QByteArray &bytes)
{
    const QString path = TempPath(name);
    WriteBytes(path, bytes);
    return path;
}

// Writes the lines, each ended by `end`.
inline QString WriteLines(const QString &name, const QStringList &lines, const QString &end = QStringLiteral("\n"))
{
    return WriteFile(name, (lines.join(end) + end).toUtf8());
}

} // namespace tb::test
