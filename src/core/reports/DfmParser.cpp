#include "reports/DfmParser.h"

#include "document/LegacyText.h"

#include <QFile>
#include <QFileInfo>

#include <limits>

namespace tb {

QString DfmValue::kindName(Kind kind)
{
    switch (kind) {
    case Integer:
        return QStringLiteral("a whole number");
    case Float:
        return QStringLiteral("a number");
    case String:
        return QStringLiteral("a quoted string");
    case Identifier:
        return QStringLiteral("a name");
    case Set:
        return QStringLiteral("a set in [ ]");
    case List:
        return QStringLiteral("a list in ( )");
    case Binary:
        return QStringLiteral("binary data in { }");
    case Collection:
        return QStringLiteral("a collection in < >");
    }
    return QString();
}

namespace {

struct Token
{
    enum Kind { End, Symbol, Name, String, Integer, Float };
    Kind kind = End;
    int line = 1;
    QChar symbol;
    QString text; // names and strings
    qint64 integer = 0;
    double number = 0.0;
    QString source; // the token as written, for messages
};

class ParseError
{
public:
    int line;
    QString message;
};

bool isNameStart(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_';
}

bool isNameChar(QChar c)
{
    return isNameStart(c) || (c >= u'0' && c <= u'9');
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(QChar c)
{
    return isDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// Reads tokens from the text. Names may hold dots between their parts (Font.Name);
// a string is any run of quoted parts and #nn character codes written without blanks
// between them.
class Lexer
{
public:
    explicit Lexer(const QString &text)
        : m_text(text)
    {}

    int line() const { return m_line; }

    Token next()
    {
        skipBlanks();
        Token t;
        t.line = m_line;
        if (m_pos >= m_text.size())
            return t;
        const QChar c = m_text.at(m_pos);
        const qsizetype start = m_pos;
        if (isNameStart(c)) {
            readName(t);
        } else if (c == u'\'' || c == u'#') {
            readString(t);
        } else if (isDigit(c) || c == u'$' ||
                   ((c == u'-' || c == u'+') && m_pos + 1 < m_text.size() &&
                    (isDigit(m_text.at(m_pos + 1)) || m_text.at(m_pos + 1) == u'$'))) {
            readNumber(t);
        } else if (QStringLiteral("=:[](){}<>,+").contains(c)) {
            t.kind = Token::Symbol;
            t.symbol = c;
            ++m_pos;
        } else {
            throw ParseError{m_line, QStringLiteral("unexpected character \"%1\"").arg(c)};
        }
        t.source = m_text.mid(start, m_pos - start);
        return t;
    }

    // The hexadecimal digits of a binary value, up to and including the closing "}".
    QByteArray readBinary()
    {
        QByteArray hex;
        while (true) {
            if (m_pos >= m_text.size())
                throw ParseError{m_line,
                                 QStringLiteral("expected \"}\" to close the binary data, found the end of the file")};
            const QChar c = m_text.at(m_pos);
            if (c == u'}') {
                ++m_pos;
                break;
            }
            if (c == u'\n')
                ++m_line;
            if (isHexDigit(c))
                hex.append(char(c.unicode()));
            else if (!c.isSpace())
                throw ParseError{
                    m_line, QStringLiteral("expected a hexadecimal digit in the binary data, found \"%1\"").arg(c)};
            ++m_pos;
        }
        if (hex.size() % 2 != 0)
            throw ParseError{m_line, QStringLiteral("binary data has an odd number of hexadecimal digits")};
        return QByteArray::fromHex(hex);
    }

private:
    void skipBlanks()
    {
        while (m_pos < m_text.size()) {
            const QChar c = m_text.at(m_pos);
            if (c == u'\n')
                ++m_line;
            else if (!c.isSpace())
                break;
            ++m_pos;
        }
    }

    void readName(Token &t)
    {
        const qsizetype start = m_pos;
        while (true) {
            while (m_pos < m_text.size() && isNameChar(m_text.at(m_pos)))
                ++m_pos;
            if (m_pos + 1 < m_text.size() && m_text.at(m_pos) == u'.' && isNameStart(m_text.at(m_pos + 1))) {
                ++m_pos;
                continue;
            }
            break;
        }
        t.kind = Token::Name;
        t.text = m_text.mid(start, m_pos - start);
    }

    void readString(Token &t)
    {
        t.kind = Token::String;
        while (m_pos < m_text.size()) {
            const QChar c = m_text.at(m_pos);
            if (c == u'\'') {
                ++m_pos;
                while (true) {
                    if (m_pos >= m_text.size() || m_text.at(m_pos) == u'\n' || m_text.at(m_pos) == u'\r')
                        throw ParseError{
                            m_line, QStringLiteral("expected \"'\" to close the string before the end of the line")};
                    const QChar s = m_text.at(m_pos++);
                    if (s == u'\'') {
                        if (m_pos < m_text.size() && m_text.at(m_pos) == u'\'') {
                            t.text += u'\'';
                            ++m_pos;
                            continue;
                        }
                        break;
                    }
                    t.text += s;
                }
            } else if (c == u'#') {
                ++m_pos;
                bool hex = false;
                if (m_pos < m_text.size() && m_text.at(m_pos) == u'$') {
                    hex = true;
                    ++m_pos;
                }
                const qsizetype digits = m_pos;
                while (m_pos < m_text.size() && (hex ? isHexDigit(m_text.at(m_pos)) : isDigit(m_text.at(m_pos))))
                    ++m_pos;
                bool ok = false;
                const uint code = m_text.mid(digits, m_pos - digits).toUInt(&ok, hex ? 16 : 10);
                if (!ok || code > 0xFFFF)
                    throw ParseError{m_line, QStringLiteral("expected a character code after \"#\"")};
                t.text += QChar(char16_t(code));
            } else {
                break;
            }
        }
    }

    void readNumber(Token &t)
    {
        const qsizetype start = m_pos;
        bool negative = false;
        if (m_text.at(m_pos) == u'-' || m_text.at(m_pos) == u'+') {
            negative = m_text.at(m_pos) == u'-';
            ++m_pos;
        }
        if (m_pos < m_text.size() && m_text.at(m_pos) == u'$') {
            ++m_pos;
            const qsizetype digits = m_pos;
            while (m_pos < m_text.size() && isHexDigit(m_text.at(m_pos)))
                ++m_pos;
            bool ok = false;
            const quint64 value = m_text.mid(digits, m_pos - digits).toULongLong(&ok, 16);
            if (!ok || m_pos - digits > 16)
                throw ParseError{m_line, QStringLiteral("expected hexadecimal digits after \"$\"")};
            t.kind = Token::Integer;
            // Eight digits are a 32-bit value as the toolkit writes colours: $FF00000F is negative.
            if (m_pos - digits > 8 && value > quint64(std::numeric_limits<qint64>::max()))
                throw ParseError{m_line,
                                 QStringLiteral("\"%1\" is too large a number").arg(m_text.mid(start, m_pos - start))};
            const qint64 v = (m_pos - digits <= 8) ? qint64(qint32(quint32(value))) : qint64(value);
            t.integer = negative ? -v : v;
            checkNumberEnd();
            return;
        }
        while (m_pos < m_text.size() && isDigit(m_text.at(m_pos)))
            ++m_pos;
        bool isFloat = false;
        if (m_pos + 1 < m_text.size() && m_text.at(m_pos) == u'.' && isDigit(m_text.at(m_pos + 1))) {
            isFloat = true;
            ++m_pos;
            while (m_pos < m_text.size() && isDigit(m_text.at(m_pos)))
                ++m_pos;
        }
        if (m_pos < m_text.size() && (m_text.at(m_pos) == u'e' || m_text.at(m_pos) == u'E')) {
            qsizetype p = m_pos + 1;
            if (p < m_text.size() && (m_text.at(p) == u'-' || m_text.at(p) == u'+'))
                ++p;
            if (p < m_text.size() && isDigit(m_text.at(p))) {
                isFloat = true;
                m_pos = p;
                while (m_pos < m_text.size() && isDigit(m_text.at(m_pos)))
                    ++m_pos;
            }
        }
        const QString number = m_text.mid(start, m_pos - start);
        // The toolkit marks the precision of a stored float with a letter: 1.5s, 2.0d, 3c.
        if (m_pos < m_text.size() && QStringLiteral("sdcfSDCF").contains(m_text.at(m_pos)) &&
            (m_pos + 1 >= m_text.size() || !isNameChar(m_text.at(m_pos + 1)))) {
            isFloat = true;
            ++m_pos;
        }
        bool ok = false;
        if (isFloat) {
            t.kind = Token::Float;
            t.number = number.toDouble(&ok);
        } else {
            t.kind = Token::Integer;
            t.integer = number.toLongLong(&ok);
        }
        if (!ok)
            throw ParseError{m_line, QStringLiteral("\"%1\" is not a valid number").arg(number)};
        checkNumberEnd();
    }

    void checkNumberEnd()
    {
        if (m_pos < m_text.size() && (isNameChar(m_text.at(m_pos)) || m_text.at(m_pos) == u'.'))
            throw ParseError{
                m_line,
                QStringLiteral("expected a blank or a symbol after the number, found \"%1\"").arg(m_text.at(m_pos))};
    }

    const QString &m_text;
    qsizetype m_pos = 0;
    int m_line = 1;
};

QString describe(const Token &t)
{
    switch (t.kind) {
    case Token::End:
        return QStringLiteral("the end of the file");
    case Token::Symbol:
        return QStringLiteral("\"%1\"").arg(t.symbol);
    case Token::Name:
        return QStringLiteral("\"%1\"").arg(t.text);
    case Token::String:
        return QStringLiteral("the string %1").arg(t.source.left(40));
    case Token::Integer:
    case Token::Float:
        return QStringLiteral("the number %1").arg(t.source);
    }
    return QString();
}

bool isKeyword(const Token &t, const char *word)
{
    return t.kind == Token::Name && t.text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
}

bool isObjectKeyword(const Token &t)
{
    return isKeyword(t, "object") || isKeyword(t, "inherited") || isKeyword(t, "inline");
}

// Words of the syntax: never a name, a class or a value.
bool isReserved(const Token &t)
{
    return isKeyword(t, "end") || isObjectKeyword(t) || isKeyword(t, "item");
}

bool isSymbol(const Token &t, char16_t c)
{
    return t.kind == Token::Symbol && t.symbol == QChar(c);
}

// Objects, lists and collections nest; deeper than any template needs is an error,
// not a stack overflow.
constexpr int MaxNesting = 64;

class Parser
{
public:
    explicit Parser(const QString &text)
        : m_lexer(text)
    {
        advance();
    }

    DfmObject parseRoot()
    {
        if (!isObjectKeyword(m_tok))
            fail(QStringLiteral("\"object\""));
        DfmObject root = parseObject();
        if (m_tok.kind != Token::End)
            fail(QStringLiteral("the end of the file after the last \"end\""));
        return root;
    }

private:
    [[noreturn]] void fail(const QString &expected)
    {
        throw ParseError{m_tok.line, QStringLiteral("expected %1, found %2").arg(expected, describe(m_tok))};
    }

    void advance() { m_tok = m_lexer.next(); }

    // Counts one level of nesting while it lives.
    class Nested
    {
    public:
        explicit Nested(Parser &parser)
            : m_parser(parser)
        {
            if (++m_parser.m_depth > MaxNesting)
                throw ParseError{m_parser.m_tok.line,
                                 QStringLiteral("objects and values nest deeper than %1 levels").arg(MaxNesting)};
        }
        ~Nested() { --m_parser.m_depth; }
        Nested(const Nested &) = delete;
        Nested &operator=(const Nested &) = delete;

    private:
        Parser &m_parser;
    };

    void expectSymbol(char16_t c, const QString &context)
    {
        if (!isSymbol(m_tok, c))
            fail(QStringLiteral("\"%1\" %2").arg(QChar(c), context));
        advance();
    }

    DfmObject parseObject()
    {
        const Nested nested(*this);
        DfmObject object;
        object.keyword = m_tok.text.toLower();
        object.line = m_tok.line;
        advance();
        if (m_tok.kind != Token::Name || m_tok.text.contains(u'.') || isReserved(m_tok))
            fail(QStringLiteral("a component name or class name after \"%1\"").arg(object.keyword));
        const QString first = m_tok.text;
        advance();
        if (isSymbol(m_tok, u':')) {
            advance();
            if (m_tok.kind != Token::Name || m_tok.text.contains(u'.') || isReserved(m_tok))
                fail(QStringLiteral("a class name after \"%1:\"").arg(first));
            object.name = first;
            object.className = m_tok.text;
            advance();
        } else {
            object.className = first;
        }
        if (isSymbol(m_tok, u'[')) { // creation order index of inherited forms: [n]
            advance();
            if (m_tok.kind != Token::Integer)
                fail(QStringLiteral("a whole number in \"[ ]\" after the class name"));
            advance();
            expectSymbol(u']', QStringLiteral("after the creation index"));
        }
        while (true) {
            if (isKeyword(m_tok, "end")) {
                advance();
                return object;
            }
            if (isObjectKeyword(m_tok)) {
                object.children.append(parseObject());
                continue;
            }
            if (m_tok.kind == Token::Name) {
                object.properties.append(parseProperty());
                continue;
            }
            fail(QStringLiteral("a property, \"object\" or \"end\" in %1")
                     .arg(object.name.isEmpty() ? object.className : object.name));
        }
    }

    std::pair<QString, DfmValue> parseProperty()
    {
        const QString name = m_tok.text;
        advance();
        if (!isSymbol(m_tok, u'='))
            fail(QStringLiteral("\"=\" after the property name \"%1\"").arg(name));
        advance();
        return {name, parseValue(name)};
    }

    DfmValue parseValue(const QString &property)
    {
        const Nested nested(*this);
        DfmValue v;
        v.line = m_tok.line;
        switch (m_tok.kind) {
        case Token::Integer:
            v.kind = DfmValue::Integer;
            v.integer = m_tok.integer;
            advance();
            return v;
        case Token::Float:
            v.kind = DfmValue::Float;
            v.number = m_tok.number;
            advance();
            return v;
        case Token::String:
            v.kind = DfmValue::String;
            v.text = m_tok.text;
            advance();
            // 'part one' + 'part two': the writer splits long strings over lines.
            while (isSymbol(m_tok, u'+')) {
                advance();
                if (m_tok.kind != Token::String)
                    fail(QStringLiteral("a string after \"+\""));
                v.text += m_tok.text;
                advance();
            }
            return v;
        case Token::Name:
            if (isReserved(m_tok))
                fail(QStringLiteral("a value for \"%1\"").arg(property));
            v.kind = DfmValue::Identifier;
            v.text = m_tok.text;
            advance();
            return v;
        case Token::Symbol:
            break;
        case Token::End:
            fail(QStringLiteral("a value for \"%1\"").arg(property));
        }
        if (isSymbol(m_tok, u'[')) {
            v.kind = DfmValue::Set;
            advance();
            if (isSymbol(m_tok, u']')) {
                advance();
                return v;
            }
            while (true) {
                if (m_tok.kind != Token::Name)
                    fail(QStringLiteral("a name in the set of \"%1\"").arg(property));
                v.setItems.append(m_tok.text);
                advance();
                if (isSymbol(m_tok, u']')) {
                    advance();
                    return v;
                }
                if (!isSymbol(m_tok, u','))
                    fail(QStringLiteral("\",\" or \"]\" in the set of \"%1\"").arg(property));
                advance();
            }
        }
        if (isSymbol(m_tok, u'(')) {
            v.kind = DfmValue::List;
            advance();
            while (!isSymbol(m_tok, u')')) {
                if (m_tok.kind == Token::End)
                    fail(QStringLiteral("\")\" to close the list of \"%1\"").arg(property));
                v.items.append(parseValue(property));
            }
            advance();
            return v;
        }
        if (isSymbol(m_tok, u'{')) {
            v.kind = DfmValue::Binary;
            v.bytes = m_lexer.readBinary();
            advance();
            return v;
        }
        if (isSymbol(m_tok, u'<')) {
            v.kind = DfmValue::Collection;
            advance();
            while (!isSymbol(m_tok, u'>')) {
                if (!isKeyword(m_tok, "item"))
                    fail(QStringLiteral("\"item\" or \">\" in the collection \"%1\"").arg(property));
                DfmItem item;
                item.line = m_tok.line;
                advance();
                while (!isKeyword(m_tok, "end")) {
                    if (m_tok.kind != Token::Name)
                        fail(QStringLiteral("a property or \"end\" in an item of \"%1\"").arg(property));
                    item.properties.append(parseProperty());
                }
                advance();
                v.collection.append(item);
            }
            advance();
            return v;
        }
        fail(QStringLiteral("a value for \"%1\"").arg(property));
    }

    Lexer m_lexer;
    Token m_tok;
    int m_depth = 0;
};

} // namespace

ResultOf<DfmObject> ParseDfmText(const QString &text, const QString &fileName)
{
    try {
        Parser parser(text);
        return parser.parseRoot();
    } catch (const ParseError &e) {
        return ResultOf<DfmObject>::failure(QStringLiteral("%1, line %2: %3").arg(fileName).arg(e.line).arg(e.message));
    }
}

ResultOf<DfmObject> ParseDfmFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ResultOf<DfmObject>::failure(QStringLiteral("%1: %2").arg(name, file.errorString()));
    const QByteArray bytes = file.readAll();
    // The binary form of the older edition starts with a resource header or "TPF0".
    if (bytes.startsWith("TPF0") || bytes.startsWith(QByteArray("\xFF\x0A\x00", 3)))
        return ResultOf<DfmObject>::failure(
            QStringLiteral("%1, line 1: expected a template in text form, found a binary form file").arg(name));
    return ParseDfmText(legacy::DecodeFileText(bytes), name);
}

} // namespace tb
