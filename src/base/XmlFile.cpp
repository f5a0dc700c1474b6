#include "base/XmlFile.h"

#include "base/FileBytes.h"
#include "base/RuntimeError.h"
#include "base/TextFile.h"
#include "base/XMLUtils.h"
#include "base/XmlCheck.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A text that is its element's first child sits in the element itself, which saves a node a leaf. White space is kept
// where it is all that a leaf holds. Line ends are left as they are.
constexpr unsigned int parseFlags =
    pugi::parse_cdata | pugi::parse_escapes | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;

struct Declaration
{
    bool valid = true;
    QString encoding;     // empty when none is named
    qsizetype length = 0; // 0 when there is no declaration
};

Declaration readDeclaration(const QByteArray& bytes)
{
    constexpr QByteArrayView start = "<?xml";
    if (!bytes.startsWith(start) || bytes.size() == start.size() ||
        !QByteArrayView(" \t\r\n").contains(bytes.at(start.size()))) {
        return {}; // such as <?xml-stylesheet, an instruction like any other
    }
    const QRegularExpression whole(uR"(^<\?xml[ \t\r\n]+version[ \t\r\n]*=[ \t\r\n]*(["'])1\.[0-9]+\1)"
                                   uR"(([ \t\r\n]+encoding[ \t\r\n]*=[ \t\r\n]*(["'])([A-Za-z][\w.-]*)\3)?)"
                                   uR"(([ \t\r\n]+standalone[ \t\r\n]*=[ \t\r\n]*(["'])(yes|no)\6)?[ \t\r\n]*\?>)"_s);
    constexpr qsizetype longest = 512;
    const QString head = QString::fromLatin1(bytes.first(std::min(bytes.size(), longest)));
    const QRegularExpressionMatch match = whole.match(head);
    return {match.hasMatch(), match.captured(4).toUpper(), match.capturedLength()};
}

// Turns the bytes of a document into UTF-8 without byte order mark and declaration. False when they are in no encoding
// that is read here, or not in the one they say.
bool normalise(QByteArray& bytes)
{
    const bool isUtf16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    if (isUtf16) {
        QStringDecoder decoder(QStringConverter::Utf16);
        const QString text = decoder(bytes);
        if (decoder.hasError() || bytes.size() % 2 != 0 || !text.isValidUtf16()) {
            return false;
        }
        bytes = text.toUtf8();
    } else if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    const Declaration declaration = readDeclaration(bytes);
    if (!declaration.valid) {
        return false;
    }
    bytes.remove(0, declaration.length);
    const QString& encoding = declaration.encoding;
    if (isUtf16) {
        return encoding.isEmpty() || encoding == "UTF-16"_L1;
    }
    if (encoding == "ISO-8859-1"_L1) {
        bytes = QString::fromLatin1(bytes).toUtf8();
    } else if (encoding == "WINDOWS-1252"_L1) {
        bytes = decodeWindows1252(bytes).toUtf8();
    } else {
        return encoding.isEmpty() || encoding == "UTF-8"_L1 || encoding == "US-ASCII"_L1;
    }
    return true;
}

// Makes plain texts of the sections of character data, which xmlToBytes relies on.
void dissolveSections(pugi::xml_document& document)
{
    for (pugi::xml_node at = document.first_child(); at; at = nextNode(at, document)) {
        if (at.type() == pugi::node_cdata) {
            const pugi::xml_node section = at;
            pugi::xml_node parent = at.parent();
            at = parent.insert_child_after(pugi::node_pcdata, section);
            at.set_value(section.value());
            parent.remove_child(section);
        }
    }
}

// Gathers the document's bytes; a CR becomes a character reference, since a reader takes a plain one for an LF.
class BytesWriter : public pugi::xml_writer
{
public:
    void write(const void* data, std::size_t size) override
    {
        const QByteArrayView piece(static_cast<const char*>(data), static_cast<qsizetype>(size));
        if (piece.contains('\r')) {
            bytes.append(piece.toByteArray().replace('\r', "&#13;"));
        } else {
            bytes.append(piece);
        }
    }

    QByteArray bytes;
};

} // namespace

void XmlFile::load(const QString& path)
{
    QByteArray bytes;
    try {
        bytes = readFileBytes(path);
    } catch (const RuntimeError&) {
        // A file that cannot be read is an empty document.
    }
    parse(std::move(bytes));
}

void XmlFile::parse(QByteArray bytes)
{
    m_document.reset();
    m_bytes = std::move(bytes);
    bool hasSections = false;
    if (normalise(m_bytes) && keepsXmlRules(m_bytes, &hasSections)) {
        const auto size = static_cast<std::size_t>(m_bytes.size());
        if (m_document.load_buffer_inplace(m_bytes.data(), size, parseFlags, pugi::encoding_utf8)) {
            if (hasSections) {
                dissolveSections(m_document);
            }
            return;
        }
    }
    m_document.reset();
    m_bytes.clear();
}

QByteArray xmlToBytes(const pugi::xml_document& document)
{
    BytesWriter writer;
    document.save(writer, "", pugi::format_raw | pugi::format_no_declaration | pugi::format_skip_control_chars,
                  pugi::encoding_utf8);
    return writer.bytes;
}
