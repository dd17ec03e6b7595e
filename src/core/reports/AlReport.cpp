#include "reports/AlReport.h"

#include "reports/AlLayout.h"

#include "reports/DfmParser.h"

#include "document/LegacyText.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QSet>

#include <map>

#include <climits>
#include <cmath>

namespace tb {

QSize PaperSizeMM(tPapersize paper)
{
    switch (paper) {
    case tPapersize::alr_A4:
        return {210, 297};
    case tPapersize::alr_A5:
        return {148, 210};
    case tPapersize::alr_Legal:
        return {215, 355};
    case tPapersize::alr_Letter:
        return {215, 279};
    }
    return {210, 297};
}

int ScaleToOutput(int designValue, int outputDpi, int designPpi)
{
    // nearbyint rounds half to even in the default rounding mode.
    return int(std::nearbyint(double(designValue) * outputDpi / designPpi + 0.5));
}

int MillimetresToDots(double mm, int dpi)
{
    return int(std::nearbyint(dpi * mm / 25.4 + 0.5));
}

QString PrintingFamily(const QString &family)
{
    // Templates name Arial, which Liberation Sans replaces metric for metric. When neither
    // the named family nor a replacement of the same widths is installed, a family with a
    // bold face of its own is taken: a bold made up by slanting strokes outward is wider
    // than its metrics and would run into the next column. Every text is measured and
    // drawn in the very font chosen here.
    static QHash<QString, QString> chosen;
    auto it = chosen.constFind(family);
    if (it != chosen.cend())
        return *it;
    const QStringList installed = QFontDatabase::families();
    auto hasBold = [](const QString &name) {
        return QFontDatabase::styles(name).contains(QStringLiteral("Bold"), Qt::CaseInsensitive);
    };
    QString result = family;
    if (!installed.contains(family, Qt::CaseInsensitive)) {
        QStringList candidates;
        if (family.compare(QLatin1String("Arial"), Qt::CaseInsensitive) == 0 ||
            family.compare(QLatin1String("Helvetica"), Qt::CaseInsensitive) == 0)
            candidates << QStringLiteral("Liberation Sans") << QStringLiteral("Arimo");
        candidates << QStringLiteral("DejaVu Sans") << QStringLiteral("Noto Sans") << QStringLiteral("FreeSans")
                   << QStringLiteral("Nimbus Sans");
        const QString resolved = QFontInfo(QFont(family)).family();
        if (!hasBold(resolved)) {
            for (const QString &candidate : candidates) {
                if (installed.contains(candidate, Qt::CaseInsensitive) && hasBold(candidate)) {
                    result = candidate;
                    break;
                }
            }
        }
    }
    chosen.insert(family, result);
    return result;
}

const QFontMetricsF &TAlLabel::metrics() const
{
    if (!m_metrics)
        m_metrics.emplace(outputFont);
    return *m_metrics;
}

double TAlLabel::advance(const QString &text) const
{
    if (text.isEmpty())
        return 0.0;
    const QList<TextLine> &lines = paragraph(text, 0.0);
    return lines.isEmpty() ? 0.0 : lines.first().width;
}

const QList<TextLine> &TAlLabel::paragraph(const QString &text, double width) const
{
    // One label wraps at one width; should it change, the kept lines no longer hold.
    if (width > 0.0 && width != m_paragraphWidth) {
        m_wrapped.clear();
        m_paragraphWidth = width;
    }
    QHash<QString, QList<TextLine>> &kept = width > 0.0 ? m_wrapped : m_paragraphs;
    auto it = kept.constFind(text);
    if (it != kept.cend())
        return *it;
    if (kept.size() > 65536)
        kept.clear();
    if (!m_rawFont)
        m_rawFont = QRawFont::fromFont(outputFont);
    return *kept.insert(text, LayOutParagraph(text, outputFont, *m_rawFont, width));
}

// ---- Named values and pictures ----

TAlField *TAlReport::fieldNamed(const QString &name)
{
    // Builders push thousands of values to a few dozen names: each name is looked up in
    // the form once.
    auto it = m_fieldsByName.constFind(name);
    if (it != m_fieldsByName.cend())
        return *it;
    TAlField *found = nullptr;
    if (m_form) {
        for (const auto &component : m_form->components) {
            if (component->kind() == Kind::Field && component->Name.compare(name, Qt::CaseInsensitive) == 0) {
                found = static_cast<TAlField *>(component.get());
                break;
            }
        }
    }
    m_fieldsByName.insert(name, found);
    return found;
}

void TAlReport::AddNamedValue(const QString &fieldName, const QString &value)
{
    if (TAlField *field = fieldNamed(fieldName)) {
        field->values.append(value);
        if (tracing())
            trace(QStringLiteral("AddNamedValue(") + fieldName + QStringLiteral(") = ") + value);
        return;
    }
    if (tracing())
        trace(QStringLiteral("AlField ") + fieldName + QStringLiteral(" = not found for value: ") + value);
}

void TAlReport::AddFieldValue(TAlField &field, const QString &value)
{
    field.values.append(value);
    if (tracing())
        trace(QStringLiteral("AddNamedValue(") + field.Name + QStringLiteral(") = ") + value);
}

void TAlReport::SetPicture(const QImage &picture)
{
    if (!m_form)
        return;
    for (const auto &component : m_form->components)
        if (component->kind() == Kind::Image)
            static_cast<tAlImage &>(*component).Picture = picture;
}

// ---- The form ----

QList<tAlBand *> ReportForm::bands() const
{
    QList<tAlBand *> list;
    for (const auto &component : components)
        if (component->kind() == AlComponent::Kind::Band)
            list.append(static_cast<tAlBand *>(component.get()));
    return list;
}

QList<TAlField *> ReportForm::fields() const
{
    QList<TAlField *> list;
    for (const auto &component : components)
        if (component->kind() == AlComponent::Kind::Field)
            list.append(static_cast<TAlField *>(component.get()));
    return list;
}

AlComponent *ReportForm::find(const QString &name) const
{
    for (const auto &component : components)
        if (component->Name.compare(name, Qt::CaseInsensitive) == 0)
            return component.get();
    return nullptr;
}

// ---- Building a form from a parsed template ----

namespace {

struct LoadError
{
    int line;
    QString message;
};

bool sameName(const QString &a, const char *b)
{
    return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0;
}

class FormBuilder
{
public:
    FormBuilder(ReportForm &form, const QString &fileName)
        : m_form(form)
        , m_file(fileName)
    {}

    void build(const DfmObject &root)
    {
        for (const auto &[name, value] : root.properties)
            applyFormProperty(name, value);
        for (const DfmObject &child : root.children)
            addComponent(child, nullptr);
        resolveReferences();
        resolveFonts();
    }

private:
    [[noreturn]] void fail(int line, const QString &message) { throw LoadError{line, message}; }

    // ---- values ----

    qint64 integer(const QString &prop, const DfmValue &v)
    {
        if (v.kind != DfmValue::Integer)
            fail(v.line,
                 QStringLiteral("expected a whole number for \"%1\", found %2").arg(prop, DfmValue::kindName(v.kind)));
        return v.integer;
    }

    // A whole number that must lie in [low, high] before any arithmetic is done with
    // it: positions and sizes stay far from the limits of int, so scaling them and
    // adding them up cannot overflow.
    int integerIn(const QString &prop, const DfmValue &v, qint64 low, qint64 high)
    {
        const qint64 value = integer(prop, v);
        if (value < low || value > high)
            fail(v.line,
                 QStringLiteral("\"%1\" must lie between %2 and %3, found %4").arg(prop).arg(low).arg(high).arg(value));
        return int(value);
    }
    // Positions and sizes in design pixels: ten metres of paper at 1200 dots per inch.
    int designInt(const QString &prop, const DfmValue &v) { return integerIn(prop, v, -500000, 500000); }

    double number(const QString &prop, const DfmValue &v)
    {
        if (v.kind == DfmValue::Integer)
            return double(v.integer);
        if (v.kind != DfmValue::Float)
            fail(v.line,
                 QStringLiteral("expected a number for \"%1\", found %2").arg(prop, DfmValue::kindName(v.kind)));
        return v.number;
    }

    bool boolean(const QString &prop, const DfmValue &v)
    {
        if (v.kind == DfmValue::Identifier) {
            if (sameName(v.text, "True"))
                return true;
            if (sameName(v.text, "False"))
                return false;
        }
        fail(v.line, QStringLiteral("expected True or False for \"%1\"").arg(prop));
    }

    QString string(const QString &prop, const DfmValue &v)
    {
        if (v.kind != DfmValue::String)
            fail(v.line,
                 QStringLiteral("expected a quoted string for \"%1\", found %2").arg(prop, DfmValue::kindName(v.kind)));
        return v.text;
    }

    QString identifier(const QString &prop, const DfmValue &v)
    {
        if (v.kind != DfmValue::Identifier)
            fail(v.line, QStringLiteral("expected a name for \"%1\", found %2").arg(prop, DfmValue::kindName(v.kind)));
        return v.text;
    }

    template <typename E>
    E enumeration(const QString &prop, const DfmValue &v, std::initializer_list<const char *> names)
    {
        const QString id = identifier(prop, v);
        int index = 0;
        for (const char *name : names) {
            if (sameName(id, name))
                return E(index);
            ++index;
        }
        QStringList expected;
        for (const char *name : names)
            expected.append(QString::fromLatin1(name));
        fail(v.line, QStringLiteral("expected one of %1 for \"%2\", found \"%3\"").arg(expected.join(u", "), prop, id));
    }

    quint32 color(const QString &prop, const DfmValue &v)
    {
        if (v.kind == DfmValue::Integer)
            return quint32(v.integer);
        if (v.kind == DfmValue::Identifier) {
            quint32 value = 0;
            if (legacy::StringToColorValue(v.text, &value))
                return value;
            fail(v.line, QStringLiteral("\"%1\" is not a colour name (for \"%2\")").arg(v.text, prop));
        }
        fail(v.line, QStringLiteral("expected a colour name or number for \"%1\"").arg(prop));
    }

    // ---- shared property groups ----

    bool fontProperty(AlFont &font, const QString &name, const DfmValue &v)
    {
        if (!name.startsWith(QLatin1String("Font."), Qt::CaseInsensitive))
            return false;
        const QString sub = name.mid(5);
        if (sameName(sub, "Name")) {
            font.name = string(name, v);
        } else if (sameName(sub, "Height")) {
            font.height = integerIn(name, v, -10000, 10000);
        } else if (sameName(sub, "Size")) {
            // Points to design pixels, as the toolkit stores it: a negative height.
            font.height = -int(std::lround(double(integerIn(name, v, -10000, 10000)) * m_form.PixelsPerInch / 72.0));
        } else if (sameName(sub, "Color")) {
            font.color = color(name, v);
        } else if (sameName(sub, "Style")) {
            if (v.kind != DfmValue::Set)
                fail(v.line, QStringLiteral("expected a set such as [fsBold] for \"%1\"").arg(name));
            font.bold = font.italic = font.underline = font.strikeOut = false;
            for (const QString &item : v.setItems) {
                if (sameName(item, "fsBold"))
                    font.bold = true;
                else if (sameName(item, "fsItalic"))
                    font.italic = true;
                else if (sameName(item, "fsUnderline"))
                    font.underline = true;
                else if (sameName(item, "fsStrikeOut"))
                    font.strikeOut = true;
                else
                    fail(v.line, QStringLiteral("expected fsBold, fsItalic, fsUnderline or fsStrikeOut in \"%1\", "
                                                "found \"%2\"")
                                     .arg(name, item));
            }
        } else if (sameName(sub, "Charset") || sameName(sub, "Pitch")) {
            // Character set and pitch choose among Windows font files; fontconfig chooses here.
        } else {
            fail(v.line, QStringLiteral("unknown font property \"%1\"").arg(name));
        }
        return true;
    }

    // A band's or label's font properties are checked now and applied once the parent's
    // font is known: a control's font starts as its parent's and takes what it sets.
    bool recordFont(const void *owner, const QString &name, const DfmValue &v)
    {
        AlFont scratch;
        if (!fontProperty(scratch, name, v))
            return false;
        m_fontProperties[owner].append({name, v});
        return true;
    }

    void applyFormProperty(const QString &name, const DfmValue &v)
    {
        if (sameName(name, "PixelsPerInch")) {
            const qint64 ppi = integer(name, v);
            if (ppi < 24 || ppi > 1200)
                fail(v.line, QStringLiteral("PixelsPerInch must lie between 24 and 1200"));
            m_form.PixelsPerInch = int(ppi);
            return;
        }
        if (fontProperty(m_form.Font, name, v))
            return;
        static const char *const known[] = {"Left",
                                            "Top",
                                            "Width",
                                            "Height",
                                            "ClientWidth",
                                            "ClientHeight",
                                            "Caption",
                                            "Color",
                                            "TextHeight",
                                            "OldCreateOrder",
                                            "Scaled",
                                            "Position",
                                            "BorderStyle",
                                            "BorderIcons",
                                            "FormStyle",
                                            "Visible",
                                            "WindowState",
                                            "Tag",
                                            "HorzScrollBar.Range",
                                            "VertScrollBar.Range",
                                            "HorzScrollBar.Visible",
                                            "VertScrollBar.Visible",
                                            "ParentFont",
                                            "DesignSize"};
        for (const char *k : known)
            if (sameName(name, k))
                return; // the form's own window properties play no part in a report
        fail(v.line, QStringLiteral("unknown property \"%1\" of the form").arg(name));
    }

    void applyControlBase(tAlControl &c, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "Left"))
            c.Left = designInt(name, v);
        else if (sameName(name, "Top"))
            c.Top = designInt(name, v);
        else if (sameName(name, "Width"))
            c.Width = designInt(name, v);
        else if (sameName(name, "Height"))
            c.Height = designInt(name, v);
        else if (sameName(name, "Tag"))
            c.Tag = integerIn(name, v, INT_MIN, INT_MAX);
        else if (sameName(name, "visible"))
            c.visible = boolean(name, v);
        else if (sameName(name, "VisibleInPreview"))
            c.VisibleInPreview = boolean(name, v);
        else
            fail(v.line, QStringLiteral("unknown property \"%1\" of %2").arg(name, c.ClassName));
    }

    void applyLabel(TAlLabel &c, const QString &name, const DfmValue &v, bool hasCaption)
    {
        if (sameName(name, "Alignment"))
            c.Alignment = enumeration<TAlignment>(name, v, {"taLeftJustify", "taRightJustify", "taCenter"});
        else if (sameName(name, "AutoSize"))
            c.AutoSize = boolean(name, v);
        else if (hasCaption && sameName(name, "Caption"))
            c.Caption = string(name, v);
        else if (sameName(name, "Color"))
            c.Color = color(name, v);
        else if (sameName(name, "Enabled"))
            c.Enabled = boolean(name, v);
        else if (sameName(name, "ParentFont"))
            m_parentFontSet[&c] = boolean(name, v);
        else if (sameName(name, "Transparent"))
            c.Transparent = boolean(name, v);
        else if (sameName(name, "WordWrap"))
            c.WordWrap = boolean(name, v);
        else if (sameName(name, "LabelFor"))
            c.LabelFor = identifier(name, v);
        else if (recordFont(&c, name, v))
            ;
        else
            applyControlBase(c, name, v);
    }

    void applyBand(tAlBand &b, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "Left"))
            b.Left = designInt(name, v);
        else if (sameName(name, "Top"))
            b.Top = designInt(name, v);
        else if (sameName(name, "Width"))
            b.Width = designInt(name, v);
        else if (sameName(name, "Height"))
            b.Height = designInt(name, v);
        else if (sameName(name, "Tag"))
            b.Tag = integerIn(name, v, INT_MIN, INT_MAX);
        else if (sameName(name, "TabOrder"))
            (void)integer(name, v);
        else if (sameName(name, "Align")) {
            // Bands stack on the design form; the layout orders them by their top edge.
            (void)enumeration<int>(name, v, {"alNone", "alTop", "alBottom", "alLeft", "alRight", "alClient"});
            b.Align = v.text;
        } else if (sameName(name, "Color"))
            b.Color = color(name, v);
        else if (sameName(name, "ParentFont"))
            m_parentFontSet[&b] = boolean(name, v);
        else if (sameName(name, "Enabled"))
            b.Enabled = boolean(name, v);
        else if (sameName(name, "BandType"))
            b.BandType = enumeration<tAlBandType>(name, v,
                                                  {"alr_Title", "alr_PageHeader", "alr_DetailHeader", "alr_Detail",
                                                   "alr_DetailFooter", "alr_PageFooter", "alr_ReportFooter",
                                                   "alr_NewPage", "alr_GroupHeader", "alr_GroupFooter"});
        else if (sameName(name, "AltColor"))
            b.AltColor = color(name, v);
        else if (sameName(name, "Ruler"))
            b.Ruler = enumeration<tAlRulerType>(name, v, {"alr_none", "alr_cmH", "alr_cmHV", "alr_cmV"});
        else if (sameName(name, "ClipMode"))
            b.ClipMode = enumeration<tClipMode>(name, v, {"cm_Clip", "cm_Expand", "cm_Overwrite"});
        else if (sameName(name, "Columns")) {
            b.Columns = integerIn(name, v, 1, 20);
        } else if (sameName(name, "ColWidthMM"))
            b.ColWidthMM = integerIn(name, v, 0, 10000);
        else if (sameName(name, "FirstPageHeaderOnly"))
            b.FirstPageHeaderOnly = boolean(name, v);
        else if (sameName(name, "NotFirstPageHeader"))
            b.NotFirstPageHeader = boolean(name, v);
        else if (recordFont(&b, name, v))
            ;
        else if (sameName(name, "BevelOuter") || sameName(name, "BevelInner") || sameName(name, "TabStop") ||
                 sameName(name, "ParentColor") || sameName(name, "Caption"))
            ; // design-time looks of the band on the template form
        else
            fail(v.line, QStringLiteral("unknown property \"%1\" of tAlBand").arg(name));
        if (sameName(name, "Color"))
            m_colorStored.insert(&b);
    }

    void applyShape(TAlShape &s, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "Shape"))
            s.Shape = enumeration<TShapeType>(
                name, v, {"stRectangle", "stSquare", "stRoundRect", "stRoundSquare", "stEllipse", "stCircle"});
        else if (sameName(name, "Pen.Color"))
            s.Pen.color = color(name, v);
        else if (sameName(name, "Pen.Width"))
            s.Pen.width = integerIn(name, v, 0, 1000);
        else if (sameName(name, "Pen.Style")) {
            const int style = enumeration<int>(
                name, v, {"psSolid", "psDash", "psDot", "psDashDot", "psDashDotDot", "psClear", "psInsideFrame"});
            static const Qt::PenStyle styles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,  Qt::DashDotLine,
                                                  Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine};
            s.Pen.style = styles[style];
        } else if (sameName(name, "Pen.Mode")) {
            (void)identifier(name, v);
        } else if (sameName(name, "Brush.Color"))
            s.Brush.color = color(name, v);
        else if (sameName(name, "Brush.Style")) {
            const int style = enumeration<int>(name, v,
                                               {"bsSolid", "bsClear", "bsHorizontal", "bsVertical", "bsFDiagonal",
                                                "bsBDiagonal", "bsCross", "bsDiagCross"});
            static const Qt::BrushStyle styles[] = {Qt::SolidPattern, Qt::NoBrush,         Qt::HorPattern,
                                                    Qt::VerPattern,   Qt::FDiagPattern,    Qt::BDiagPattern,
                                                    Qt::CrossPattern, Qt::DiagCrossPattern};
            s.Brush.style = styles[style];
        } else if (sameName(name, "BrushField"))
            s.BrushField = identifier(name, v);
        else
            applyControlBase(s, name, v);
    }

    // Picture.Data holds the picture class name (a length byte and the name) and the
    // picture's own stream; bitmaps, JPEG and PNG streams start with their byte count.
    QImage picture(const QString &name, const DfmValue &v)
    {
        if (v.kind != DfmValue::Binary)
            fail(v.line, QStringLiteral("expected binary data in { } for \"%1\"").arg(name));
        const QByteArray &data = v.bytes;
        if (data.isEmpty())
            return QImage();
        const int nameLength = quint8(data.at(0));
        if (data.size() < 1 + nameLength)
            fail(v.line, QStringLiteral("the picture data is shorter than its class name"));
        QByteArray payload = data.mid(1 + nameLength);
        QImage image;
        if (!image.loadFromData(payload) && payload.size() > 4) {
            const quint32 size = quint8(payload[0]) | quint8(payload[1]) << 8 | quint8(payload[2]) << 16 |
                                 quint32(quint8(payload[3])) << 24;
            if (size <= quint32(payload.size() - 4))
                image.loadFromData(payload.mid(4, int(size)));
        }
        if (image.isNull())
            fail(v.line, QStringLiteral("the picture data of \"%1\" is no picture this program can read (%2)")
                             .arg(name, QString::fromLatin1(data.mid(1, nameLength))));
        return image;
    }

    void applyImage(tAlImage &image, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "Autosize"))
            image.Autosize = boolean(name, v);
        else if (sameName(name, "Center"))
            image.Center = boolean(name, v);
        else if (sameName(name, "Stretch"))
            image.Stretch = boolean(name, v);
        else if (sameName(name, "Picture.Data"))
            image.Picture = picture(name, v);
        else
            applyControlBase(image, name, v);
    }

    void applyReport(TAlReport &r, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "Orientation"))
            r.Orientation = enumeration<TPrinterOrientation>(name, v, {"poPortrait", "poLandscape"});
        else if (sameName(name, "Papersize"))
            r.Papersize = enumeration<tPapersize>(name, v, {"alr_A4", "alr_A5", "alr_Legal", "alr_Letter"});
        else if (sameName(name, "LeftMarginMM"))
            r.LeftMarginMM = integerIn(name, v, 0, 1000);
        else if (sameName(name, "RightMarginMM"))
            r.RightMarginMM = integerIn(name, v, 0, 1000);
        else if (sameName(name, "ReportTitle"))
            r.ReportTitle = string(name, v);
        else if (sameName(name, "Left") || sameName(name, "Top") || sameName(name, "Tag"))
            (void)integer(name, v); // where the component sits on the design form
        else
            fail(v.line, QStringLiteral("unknown property \"%1\" of TAlReport").arg(name));
    }

    void applyLink(TAlDetailLink &link, const QString &name, const DfmValue &v)
    {
        if (sameName(name, "GroupHeader") || sameName(name, "GroupFooter") || sameName(name, "GroupBand") ||
            sameName(name, "DataSource"))
            m_references.append({&link, name, identifier(name, v), v.line});
        else if (sameName(name, "Left") || sameName(name, "Top") || sameName(name, "Tag"))
            (void)integer(name, v);
        else
            fail(v.line, QStringLiteral("unknown property \"%1\" of TAlDetailLink").arg(name));
    }

    // ---- components ----

    void addComponent(const DfmObject &object, tAlBand *band)
    {
        const QString &cls = object.className;
        std::unique_ptr<AlComponent> component;
        if (sameName(cls, "TAlReport")) {
            auto report = std::make_unique<TAlReport>();
            for (const auto &[name, value] : object.properties)
                applyReport(*report, name, value);
            report->setForm(&m_form);
            component = std::move(report);
        } else if (sameName(cls, "tAlBand")) {
            if (band)
                fail(object.line,
                     QStringLiteral("a band cannot sit on another band (%1 on %2)").arg(object.name, band->Name));
            auto newBand = std::make_unique<tAlBand>();
            for (const auto &[name, value] : object.properties)
                applyBand(*newBand, name, value);
            component = std::move(newBand);
        } else if (sameName(cls, "TAlLabel") || sameName(cls, "TAlField") || sameName(cls, "TAlSysField")) {
            std::unique_ptr<TAlLabel> label;
            if (sameName(cls, "TAlField"))
                label = std::make_unique<TAlField>();
            else if (sameName(cls, "TAlSysField"))
                label = std::make_unique<TAlSysField>();
            else
                label = std::make_unique<TAlLabel>();
            label->ClassName = cls;
            auto *sys = dynamic_cast<TAlSysField *>(label.get());
            for (const auto &[name, value] : object.properties) {
                if (sys && sameName(name, "DataType"))
                    sys->DataType =
                        enumeration<tAlSysDataType>(name, value,
                                                    {"alr_Time", "alr_Date", "alr_DateTime", "alr_PageNum",
                                                     "alr_Counter", "alr_Count", "alr_Formname", "alr_PageOfPages"});
                else
                    applyLabel(*label, name, value, sys == nullptr);
            }
            label->band = band;
            component = std::move(label);
        } else if (sameName(cls, "TAlShape")) {
            auto shape = std::make_unique<TAlShape>();
            shape->ClassName = cls;
            for (const auto &[name, value] : object.properties)
                applyShape(*shape, name, value);
            shape->band = band;
            component = std::move(shape);
        } else if (sameName(cls, "tAlImage")) {
            auto image = std::make_unique<tAlImage>();
            image->ClassName = cls;
            for (const auto &[name, value] : object.properties)
                applyImage(*image, name, value);
            image->band = band;
            component = std::move(image);
        } else if (sameName(cls, "TAlDetailLink")) {
            auto link = std::make_unique<TAlDetailLink>();
            for (const auto &[name, value] : object.properties)
                applyLink(*link, name, value);
            component = std::move(link);
        } else {
            fail(object.line, QStringLiteral("expected a report class (TAlReport, tAlBand, TAlLabel, TAlField, "
                                             "TAlSysField, TAlShape, tAlImage, TAlDetailLink), found \"%1\"")
                                  .arg(cls));
        }
        component->Name = object.name;
        component->ClassName = cls;
        component->line = object.line;
        AlComponent *raw = component.get();
        m_form.components.push_back(std::move(component));
        if (raw->kind() == AlComponent::Kind::Report && !m_form.report)
            m_form.report = static_cast<TAlReport *>(raw);
        if (band && raw->kind() != AlComponent::Kind::Report && raw->kind() != AlComponent::Kind::DetailLink)
            band->controls.append(static_cast<tAlControl *>(raw));
        tAlBand *childParent = raw->kind() == AlComponent::Kind::Band ? static_cast<tAlBand *>(raw) : band;
        if (!object.children.isEmpty() && raw->kind() != AlComponent::Kind::Band)
            fail(object.children.first().line,
                 QStringLiteral("%1 cannot hold other components").arg(object.name.isEmpty() ? cls : object.name));
        for (const DfmObject &child : object.children)
            addComponent(child, childParent);
    }

    struct Reference
    {
        TAlDetailLink *link;
        QString property;
        QString target;
        int line;
    };

    void resolveReferences()
    {
        for (const Reference &ref : m_references) {
            AlComponent *target = m_form.find(ref.target);
            if (!target)
                fail(ref.line, QStringLiteral("\"%1\" of %2 names \"%3\", which the template does not hold")
                                   .arg(ref.property, ref.link->Name, ref.target));
            if (sameName(ref.property, "DataSource")) {
                if (target->kind() != AlComponent::Kind::Field)
                    fail(ref.line, QStringLiteral("expected a TAlField for \"DataSource\", found %1 \"%2\"")
                                       .arg(target->ClassName, ref.target));
                ref.link->DataSource = static_cast<TAlField *>(target);
                continue;
            }
            if (target->kind() != AlComponent::Kind::Band)
                fail(ref.line, QStringLiteral("expected a tAlBand for \"%1\", found %2 \"%3\"")
                                   .arg(ref.property, target->ClassName, ref.target));
            auto *band = static_cast<tAlBand *>(target);
            if (sameName(ref.property, "GroupHeader"))
                ref.link->GroupHeader = band;
            else if (sameName(ref.property, "GroupFooter"))
                ref.link->GroupFooter = band;
            else
                ref.link->GroupBand = band;
        }
        for (const auto &component : m_form.components) {
            if (component->kind() != AlComponent::Kind::DetailLink)
                continue;
            auto *link = static_cast<TAlDetailLink *>(component.get());
            if (link->GroupBand && !link->GroupBand->link)
                link->GroupBand->link = link;
        }
    }

    static QFont outputFont(const AlFont &f, int ppi)
    {
        QFont font(PrintingFamily(f.name));
        // The design height is in template pixels; output units are LayoutDpi dots.
        const double pixels = std::abs(f.height) * double(LayoutDpi) / ppi;
        font.setPixelSize(qMax(1, int(std::lround(f.height < 0 ? pixels : pixels * 0.86))));
        font.setBold(f.bold);
        font.setItalic(f.italic);
        font.setUnderline(f.underline);
        font.setStrikeOut(f.strikeOut);
        font.setHintingPreference(QFont::PreferNoHinting);
        return font;
    }

    // A font property given without ParentFont turns ParentFont off, as in the designer.
    bool usesParentFont(const void *owner)
    {
        const auto it = m_parentFontSet.find(owner);
        if (it != m_parentFontSet.end())
            return it->second;
        return !m_fontProperties.contains(owner);
    }

    AlFont effectiveFont(const void *owner, const AlFont &parent)
    {
        AlFont font = parent;
        if (!usesParentFont(owner))
            for (const auto &[name, value] : m_fontProperties.value(owner))
                fontProperty(font, name, value);
        return font;
    }

    void resolveFonts()
    {
        for (const auto &component : m_form.components) {
            if (component->kind() == AlComponent::Kind::Band) {
                auto *band = static_cast<tAlBand *>(component.get());
                band->ParentFont = usesParentFont(band);
                band->Font = effectiveFont(band, m_form.Font);
                if (!m_colorStored.contains(band))
                    band->Color = clBtnFace;
            }
        }
        for (const auto &component : m_form.components) {
            auto *label = dynamic_cast<TAlLabel *>(component.get());
            if (!label)
                continue;
            label->ParentFont = usesParentFont(label);
            label->Font = effectiveFont(label, label->band ? label->band->Font : m_form.Font);
            label->outputFont = outputFont(label->Font, m_form.PixelsPerInch);
        }
    }

    ReportForm &m_form;
    QString m_file;
    QList<Reference> m_references;
    std::map<const void *, bool> m_parentFontSet;
    QHash<const void *, QList<std::pair<QString, DfmValue>>> m_fontProperties;
    QSet<const void *> m_colorStored;
};

} // namespace

ResultOf<std::unique_ptr<ReportForm>> BuildReportForm(const DfmObject &root, const QString &path)
{
    auto form = std::make_unique<ReportForm>();
    form->path = path;
    form->fileName = QFileInfo(path).fileName();
    try {
        FormBuilder builder(*form, form->fileName);
        builder.build(root);
    } catch (const LoadError &e) {
        return Result::failure(QStringLiteral("%1, line %2: %3").arg(form->fileName).arg(e.line).arg(e.message));
    }
    return form;
}

ResultOf<std::unique_ptr<ReportForm>> LoadTemplate(const QString &path, const TraceCallback &trace)
{
    auto report = [&](const QString &detail) {
        if (trace)
            trace(detail);
        return Result::failure(detail);
    };
    if (!QFileInfo(path).isFile())
        return report(QStringLiteral("%1: no such template file").arg(path));
    ResultOf<DfmObject> parsed = ParseDfmFile(path);
    if (!parsed)
        return report(parsed.message());
    ResultOf<std::unique_ptr<ReportForm>> built = BuildReportForm(parsed.value(), path);
    if (!built)
        return report(built.message());
    std::unique_ptr<ReportForm> form = std::move(built.value());
    if (!form->report)
        return report(QStringLiteral("%1: the template holds no TAlReport").arg(form->fileName));
    for (const auto &component : form->components) {
        if (component->kind() == AlComponent::Kind::SysField) {
            auto *sys = static_cast<TAlSysField *>(component.get());
            if (sys->DataType == tAlSysDataType::alr_Formname)
                sys->formName = form->fileName;
        }
    }
    return form;
}

} // namespace tb
