#pragma once

#include <QList>
#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>

#include <array>

namespace tb {

// Fields of a strip row, in file order. Field 7 (StripKind) says what the row is.
enum class StripField : int {
    DayNumber = 0,  // production-day index (derived)
    SceneNumber,    // scene number; on dividers and banners the day's date text (derived)
    DayNight,       // "D", "N", "DWN", "DSK"
    IntExt,         // "I", "E", "I/E"
    ScriptPage,     // script page number as typed
    PageLength,     // pages as decimal text, whole pages + eighths / 8
    Synopsis,       // one-line description; a banner's text
    StripKind,      // "1" scene, "2" day divider, "3" auto rest day, "4" banner
    Reserved8,      //
    ShootDayNumber, // shooting-day number (derived)
    Sequence,       //
    Location,       //
    Reserved12,     //
    LockDate,       // date the strip is locked to, short date form; blank when free
    StripId,        // serial number given once from NextStripId
    SetName,        //
    StripColour,    // divider: colour name; banner: "background,text"
    DayCount,       // divider "1"; banner: number of days it stands for
    Notes,          // comma text
    Assignments,    // element numbers joined by ","
};
inline constexpr int StripFieldCount = 20;

enum class ElementField : int {
    Description = 0, // the element as named in the breakdown
    CategoryNumber,  // 1-based index into the category list
    PrintOnBoard,    // "1" when printed on the board, else blank
    BoardId,         // short id shown on strips and reports
    PersonName,      // the person or item name
    Reserved5,       //
    HoldRule,        // "SAG" or "NONE"
    OtherInfo,       // comma text
    Reserved8,
    Reserved9,
    Reserved10,
    Reserved11,
    Reserved12,
    Reserved13,
    Reserved14,
    Reserved15,
    Reserved16,
    Reserved17,
    Reserved18,
    Reserved19,
};
inline constexpr int ElementFieldCount = 20;

enum class CrewField : int { Position = 0, Name, Contact, Unused };
inline constexpr int CrewFieldCount = 4;

// The four kinds of strip, as held in field 7.
namespace StripKinds {
inline const QString Scene = QStringLiteral("1");
inline const QString DayDivider = QStringLiteral("2");
inline const QString AutoRestDay = QStringLiteral("3");
inline const QString Banner = QStringLiteral("4");
} // namespace StripKinds

// A schedule file holds one value per line, so a stored value can never hold a line
// break: it would shift every later line of the file. Multi-line values (notes,
// addresses, other information) are held as comma text, one item per line.
inline bool HasLineBreak(const QString &value)
{
    return value.contains(u'\n') || value.contains(u'\r');
}
// The value with each line break (CR LF, CR or LF) replaced by a blank.
inline QString OneLineValue(QString value)
{
    value.replace(QLatin1String("\r\n"), QLatin1String(" "));
    value.replace(u'\r', u' ');
    value.replace(u'\n', u' ');
    return value;
}

// A row of text fields. Rows are implicitly shared: copying one is a pointer copy,
// and the fields are copied only when a shared row is written. A default row shares
// no storage at all and reads as all blank.
template <typename Field, int N>
class TextRecord
{
public:
    static constexpr int FieldCount = N;

    const QString &operator[](Field field) const { return at(static_cast<int>(field)); }
    const QString &at(int index) const { return d ? d->fields[index] : blank(); }

    void set(Field field, const QString &value) { setAt(static_cast<int>(field), value); }
    // Every change of a field passes here; a line break is made a blank, so no caller
    // can store a value that would break the file's layout.
    void setAt(int index, const QString &value)
    {
        if (!d) {
            if (value.isEmpty())
                return;
            d = new Data;
        }
        if (Q_UNLIKELY(HasLineBreak(value)))
            d->fields[index] = OneLineValue(value);
        else
            d->fields[index] = value;
    }

    void clear() { d.reset(); }
    // Whether both rows are the same shared storage (a cheap test, not a comparison).
    bool sharesWith(const TextRecord &other) const { return d == other.d; }
    bool isBlank() const
    {
        if (!d)
            return true;
        for (const QString &f : d->fields)
            if (!f.isEmpty())
                return false;
        return true;
    }

    friend bool operator==(const TextRecord &a, const TextRecord &b)
    {
        for (int i = 0; i < N; ++i)
            if (a.at(i) != b.at(i))
                return false;
        return true;
    }

private:
    struct Data : QSharedData
    {
        std::array<QString, N> fields;
    };
    static const QString &blank()
    {
        static const QString empty;
        return empty;
    }
    QSharedDataPointer<Data> d;
};

class StripRecord : public TextRecord<StripField, StripFieldCount>
{
public:
    const QString &kind() const { return (*this)[StripField::StripKind]; }
    bool isScene() const { return kind() == StripKinds::Scene; }
    bool isDayDivider() const { return kind() == StripKinds::DayDivider; }
    bool isAutoRestDay() const { return kind() == StripKinds::AutoRestDay; }
    bool isBanner() const { return kind() == StripKinds::Banner; }
};

using ElementRecord = TextRecord<ElementField, ElementFieldCount>;
using CrewRow = TextRecord<CrewField, CrewFieldCount>;

} // namespace tb
