#include "import/ScreenplayText.h"

namespace tb {

namespace {

// Characters a line holds on a standard page, by element.
int WidthOf(ScreenplayElement kind)
{
    switch (kind) {
    case ScreenplayElement::Character:
        return 38;
    case ScreenplayElement::Parenthetical:
        return 26;
    case ScreenplayElement::Dialogue:
        return 35;
    default:
        return 61;
    }
}

// Printed lines of a paragraph: each of its lines word-wrapped at the width; a word
// longer than the width is broken.
int WrappedLines(const QString &text, int width)
{
    int lines = 0;
    for (QStringView line : QStringView(text).split(u'\n')) {
        int used = 0;
        int count = 1;
        for (QStringView word : line.split(u' ', Qt::SkipEmptyParts)) {
            qsizetype length = word.size();
            const int needed = used == 0 ? int(length) : used + 1 + int(length);
            if (needed <= width) {
                used = needed;
                continue;
            }
            if (used > 0)
                ++count;
            while (length > width) {
                ++count;
                length -= width;
            }
            used = int(length);
        }
        lines += count;
    }
    return lines;
}

bool InSpeech(ScreenplayElement kind)
{
    return kind == ScreenplayElement::Dialogue || kind == ScreenplayElement::Parenthetical;
}

} // namespace

QList<double> PaginateScreenplay(const QList<ScreenplayParagraph> &paragraphs)
{
    constexpr int Lines = ScreenplayLinesPerPage;
    QList<double> at;
    at.reserve(paragraphs.size() + 1);
    int page = 0; // pages filled before the current one
    int used = 0; // lines used on the current page
    ScreenplayElement previous = ScreenplayElement::PageBreak;
    auto position = [&](int line) { return page + double(line) / Lines; };
    auto newPage = [&] {
        ++page;
        used = 0;
    };

    // The cue of the speech being laid out: a speech that must start on a new page
    // takes its cue along.
    qsizetype cueAt = -1;
    int cueHeight = 0;

    for (const ScreenplayParagraph &p : paragraphs) {
        if (p.kind == ScreenplayElement::PageBreak) {
            at.append(position(used));
            if (used > 0)
                newPage();
            previous = p.kind;
            continue;
        }
        // The second speaker of dual dialogue stands beside the first: no lines of its
        // own.
        if (p.dualSecond) {
            at.append(position(used));
            continue;
        }
        const int height = WrappedLines(p.text, WidthOf(p.kind));
        const bool speech = InSpeech(p.kind) && (previous == ScreenplayElement::Character || InSpeech(previous));
        int blank = (!speech && used > 0) ? 1 : 0;

        // A heading keeps two lines of what follows with it, a cue its first line of
        // speech. Action and speech break between lines, with at least two lines on
        // either side of the break; a speech leaves room for (MORE).
        int keep = height;
        if (p.kind == ScreenplayElement::Heading)
            keep = height + 3;
        else if (p.kind == ScreenplayElement::Character)
            keep = height + 1;
        const bool splittable = p.kind == ScreenplayElement::Action || speech;
        const int room = Lines - used - blank - (speech ? 1 : 0);
        const bool splits = splittable && room >= 2 && height - room >= 2;
        if (used > 0 && used + blank + keep > Lines && !splits) {
            const bool withCue = speech && previous == ScreenplayElement::Character && cueAt >= 0;
            newPage();
            blank = 0;
            if (withCue) {
                at[cueAt] = position(0);
                used = cueHeight;
            } else if (speech) {
                used = 1; // the cue again, with (CONT'D)
            }
        }
        if (p.kind == ScreenplayElement::Character) {
            cueAt = at.size();
            cueHeight = height;
        }
        at.append(position(used + blank));
        used += blank;

        int left = height;
        while (used + left > Lines) {
            const int fits = Lines - used - (speech ? 1 : 0);
            left -= qMax(fits, 0);
            newPage();
            if (speech)
                used = 1;
        }
        used += left;
        previous = p.kind;
    }
    at.append(position(used));
    return at;
}

} // namespace tb
