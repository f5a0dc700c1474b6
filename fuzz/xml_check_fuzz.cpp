// Bytes as an XML document: XmlFile takes it exactly when expat does, but for what is told at isLeftOut().
#include "FuzzTarget.h"
#include "base/XmlFile.h"

#include <QByteArray>

#include <expat.h>
#include <memory>

namespace {

bool expatTakes(const QByteArray& bytes)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              XML_ParserFree);
    return XML_Parse(parser.get(), bytes.constData(), static_cast<int>(bytes.size()), 1) == XML_STATUS_OK;
}

// Whether markup or a reference has a character outside ASCII.
bool hasWideMarkup(const QByteArray& bytes)
{
    char end = 0;
    for (const char byte : bytes) {
        if (byte == '<' || byte == '&') {
            end = byte == '<' ? '>' : ';';
        } else if (byte == end) {
            end = 0;
        } else if (end != 0 && static_cast<unsigned char>(byte) >= 0x80) {
            return true;
        }
    }
    return false;
}

// What the two deliberately see differently. An encoding is read from a declaration of ours alone (Windows-1252), or
// from expat's (UTF-16 without a mark); a document type with declarations of its own is refused here, since nobody
// would read them, and expat looks into it. Which characters outside ASCII a name may have was widened by the fifth
// edition of XML; expat still goes by the fourth.
bool isLeftOut(const QByteArray& bytes)
{
    return bytes.contains("<!DOCTYPE") || bytes.startsWith("<?xml") || bytes.startsWith("\xEF\xBB\xBF<?xml") ||
           bytes.contains('\0') || hasWideMarkup(bytes) || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    XmlFile file;
    file.parse(bytes);
    const bool taken = !file.document().first_child().empty();
    if (!isLeftOut(bytes)) {
        promise(taken == expatTakes(bytes), taken ? "what is read is well-formed" : "what is well-formed is read");
    }
    return 0;
}
