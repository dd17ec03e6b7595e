#include "import/FdxImport.h"

#include <QFile>
#include <QXmlStreamReader>

namespace tb {

namespace {

ScreenplayElement KindOf(QStringView type)
{
    if (type == u"Scene Heading")
        return ScreenplayElement::Heading;
    if (type == u"Character")
        return ScreenplayElement::Character;
    if (type == u"Dialogue")
        return ScreenplayElement::Dialogue;
    if (type == u"Parenthetical")
        return ScreenplayElement::Parenthetical;
    if (type == u"Transition")
        return ScreenplayElement::Transition;
    return ScreenplayElement::Action;
}

struct OpenParagraph
{
    ScreenplayParagraph paragraph;
    bool typed = false;
};

} // namespace

ResultOf<ScreenplayText> ParseFdx(const QByteArray &bytes)
{
    QXmlStreamReader xml(bytes);
    ScreenplayText script;
    if (!xml.readNextStartElement())
        return ResultOf<ScreenplayText>::failure(xml.errorString().isEmpty() ? QStringLiteral("the file is empty")
                                                                             : xml.errorString());
    if (xml.name() != u"FinalDraft")
        return ResultOf<ScreenplayText>::failure(QStringLiteral("it holds no FinalDraft document"));

    // Where the reader is: the script's content or the title page; paragraphs may
    // hold paragraphs (dual dialogue).
    bool inContent = false;
    bool inTitlePage = false;
    int dualDepth = 0;
    int dualCues = 0;
    QList<OpenParagraph> open;
    int paragraphNumber = 0;
    QString titleLine;

    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QStringView name = xml.name();
            if (name == u"Content" && open.isEmpty()) {
                inContent = !inTitlePage;
            } else if (name == u"TitlePage") {
                inTitlePage = true;
                inContent = false;
            } else if (name == u"DualDialogue") {
                ++dualDepth;
                dualCues = 0;
            } else if (name == u"Paragraph") {
                OpenParagraph p;
                const QXmlStreamAttributes attributes = xml.attributes();
                p.typed = attributes.hasAttribute(QStringLiteral("Type"));
                p.paragraph.kind = KindOf(attributes.value(QStringLiteral("Type")));
                p.paragraph.sceneNumber = attributes.value(QStringLiteral("Number")).toString().trimmed();
                p.paragraph.line = ++paragraphNumber;
                if (dualDepth > 0) {
                    if (p.paragraph.kind == ScreenplayElement::Character)
                        ++dualCues;
                    p.paragraph.dualSecond = dualCues > 1;
                }
                open.append(p);
            } else if (name == u"SceneProperties" && !open.isEmpty()) {
                const QXmlStreamAttributes attributes = xml.attributes();
                open.last().paragraph.length = attributes.value(QStringLiteral("Length")).toString().trimmed();
                open.last().paragraph.page = attributes.value(QStringLiteral("Page")).toString().trimmed();
            } else if (name == u"Text" && !open.isEmpty()) {
                open.last().paragraph.text += xml.readElementText(QXmlStreamReader::IncludeChildElements);
            }
        } else if (token == QXmlStreamReader::EndElement) {
            const QStringView name = xml.name();
            if (name == u"Paragraph" && !open.isEmpty()) {
                OpenParagraph p = open.takeLast();
                p.paragraph.text.replace(u'\t', u' ');
                p.paragraph.text = p.paragraph.text.trimmed();
                if (inTitlePage) {
                    if (titleLine.isEmpty() && !p.paragraph.text.isEmpty())
                        titleLine = p.paragraph.text.simplified();
                } else if (inContent &&
                           (!p.paragraph.text.isEmpty() || p.paragraph.kind == ScreenplayElement::Heading) &&
                           (p.typed || open.isEmpty())) {
                    script.paragraphs.append(p.paragraph);
                }
            } else if (name == u"DualDialogue") {
                --dualDepth;
            } else if (name == u"TitlePage") {
                inTitlePage = false;
            } else if (name == u"Content" && open.isEmpty()) {
                inContent = false;
            }
        }
    }
    if (xml.hasError())
        return ResultOf<ScreenplayText>::failure(
            QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString()));
    script.title = titleLine;
    return script;
}

Result ImportFdxFile(ScheduleDocument &doc, const QString &path, const ScriptImportSettings &words)
{
    auto failure = [&doc, &path](const QString &reason) {
        const QString text =
            QString::fromLatin1(FdxReadErrorText) + QStringLiteral("\r\r") + path + QStringLiteral(": ") + reason;
        doc.prompter().error(text);
        return Result::failure(text);
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString());
    const ResultOf<ScreenplayText> script = ParseFdx(bytes);
    if (!script)
        return failure(script.message());
    return BuildScheduleFromScreenplay(doc, *script, words);
}

} // namespace tb
