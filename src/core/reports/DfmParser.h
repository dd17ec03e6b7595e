#pragma once

// The text form of the toolkit's form files, as report templates are stored:
//
//   object ShootSchForm: TForm
//     PixelsPerInch = 96
//     Font.Name = 'Arial'
//     Font.Style = [fsBold]
//     object Report: TAlReport
//       ReportTitle = 'Shooting schedule'#13#10 +
//         'second line'
//     end
//     object DetailBand: tAlBand
//       ...
//     end
//   end
//
// The parser is strict: anything it does not understand is an error naming the file,
// the line and what was expected there. It knows nothing about reports; it yields a
// tree of objects with their properties, which the report loader then interprets.

#include "document/Result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace tb {

struct DfmValue;
struct DfmObject;

// One collection item: "item" properties "end".
struct DfmItem
{
    int line = 0;
    QList<std::pair<QString, DfmValue>> properties;
};

struct DfmValue
{
    enum Kind {
        Integer,    // 12, -3, $00FF00FF
        Float,      // 1.5, 2E3
        String,     // 'text'#13#10'more' + 'continued'
        Identifier, // alr_Detail, True, clBlack, a component name
        Set,        // [fsBold, fsItalic]
        List,       // ( value value ... )
        Binary,     // { 0A1B2C... }
        Collection, // < item ... end item ... end >
    };
    Kind kind = Integer;
    int line = 0;
    qint64 integer = 0;
    double number = 0.0;
    QString text;          // String and Identifier
    QStringList setItems;  // Set
    QList<DfmValue> items; // List
    QByteArray bytes;      // Binary
    QList<DfmItem> collection;

    // A readable name of the kind, for messages ("a string", "a number").
    static QString kindName(Kind kind);
};

struct DfmObject
{
    QString keyword;   // "object", "inherited" or "inline"
    QString name;      // may be empty: "object TFoo"
    QString className; // "TAlReport"
    int line = 0;
    QList<std::pair<QString, DfmValue>> properties; // in file order
    QList<DfmObject> children;
};

// Parses the text of a form file. fileName is used in messages only. On failure the
// message reads "<file>, line <n>: expected <what>, found <what was there>".
ResultOf<DfmObject> ParseDfmText(const QString &text, const QString &fileName);

// Reads the file (UTF-8 or Windows-1252 text) and parses it.
ResultOf<DfmObject> ParseDfmFile(const QString &path);

} // namespace tb
