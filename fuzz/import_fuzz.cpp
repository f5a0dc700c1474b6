// The import of products. The bytes are one import file, which is brought into a small shop.
//
// Promised: a line has the fields that a plain cut of it has; every line up to the first that cannot be taken has made
// one product, behind those of the category that its path leads to, and the categories that were missing there; ids are
// handed out in that order, nothing else comes into the shop, and every new node is found by its key; the import ends
// with error 9 at a line of fewer than three fields, with 28 at a path that is too deep, and with no other; what was
// imported saves and reads again as it was.
#include "FuzzTarget.h"
#include "base/RuntimeError.h"
#include "base/TextFile.h"
#include "base/XmlFile.h"
#include "model/ShopSession.h"
#include "model/clsImporter.h"
#include "model/shop_file/ShopFile.h"

#include <QByteArray>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto smallShop =
    "<Tarnwick><Shop><Version>1.2.0</Version><MaxProductId>9</MaxProductId><Name>S</Name><SelectedCountries/>"
    "<Category><Id>2</Id><Name>Tea</Name><Category><Id>3</Id><Name>Green</Name></Category>"
    "<Product><Id>4</Id><Name>Sencha</Name><Related/></Product></Category>"
    "<Category><Id>5</Id><Name>Tea</Name></Category></Shop></Tarnwick>";
constexpr int lastIdOfSmallShop = 9;

// Saving and reading again takes longer than everything else, so that it is done for one file in eight, and for no
// large shop.
constexpr std::size_t savedNodes = 300;
constexpr std::size_t oneInSaved = 8;

class NoPrompts : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override
    {
        promise(false, "no box is shown");
    }
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override
    {
        return PromptAnswer::Cancel;
    }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }
};

// A file that lies in memory and can be opened by a path.
class MemoryFile
{
public:
    MemoryFile() : m_descriptor(memfd_create("products", MFD_CLOEXEC)) {}

    QString path() const { return u"/proc/self/fd/%1"_s.arg(m_descriptor); }
    void fill(const QByteArray& bytes) const
    {
        promise(ftruncate(m_descriptor, 0) == 0 &&
                    pwrite(m_descriptor, bytes.constData(), bytes.size(), 0) == bytes.size(),
                "there is memory for the file");
    }

private:
    int m_descriptor;
};

// The shop as a flat list ---------------------------------------------------------------------------------------------

struct Node
{
    int parent = 0; // the id of the category it lies in, 0 for the shop
    int id = 0;
    bool isProduct = false;
    QString name;
    QString description;

    bool operator==(const Node&) const = default;
};

using Nodes = std::vector<Node>;

void gather(const KeyedCollection<std::shared_ptr<CategoryClass>>& categories, int parent, Nodes& nodes)
{
    int last = 0;
    for (const auto& category : categories) {
        const int id = category->id.toInt();
        promise(id > last, "a new category stands behind those of its level");
        last = id;
        nodes.push_back({parent, id, false, category->name, category->Description});
        gather(category->categories, id, nodes);
        int lastProduct = 0;
        for (const auto& product : category->products) {
            const int productId = product->id.toInt();
            promise(productId > lastProduct, "a new product stands behind those of its category");
            lastProduct = productId;
            nodes.push_back({id, productId, true, product->name, product->Description});
        }
    }
}

// All nodes of the shop in the order of their ids.
Nodes nodesOf(const ShopClass& shop)
{
    Nodes nodes;
    gather(shop.categories, 0, nodes);
    std::sort(nodes.begin(), nodes.end(), [](const Node& left, const Node& right) { return left.id < right.id; });
    return nodes;
}

// The rules of the import file, told plainly --------------------------------------------------------------------------

// What stands behind the last letter that is no blank and no quote.
QString tailOf(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && (text[end - 1] == u' ' || text[end - 1] == u'"')) {
        --end;
    }
    return text.sliced(end);
}

QStringList plainFields(const QString& line)
{
    QStringList fields;
    for (qsizetype start = 0;;) {
        qsizetype first = start; // behind the blanks
        while (first < line.size() && line[first] == u' ') {
            ++first;
        }
        const bool isQuoted = first < line.size() && line[first] == u'"';
        const qsizetype open = isQuoted ? first + 1 : start;
        const qsizetype close = isQuoted ? line.indexOf(u'"', open) : first;
        if (close < 0) {
            return fields << line.sliced(open);
        }
        const qsizetype comma = line.indexOf(u',', close);
        const qsizetype end = comma < 0 ? line.size() : comma;
        if (first == line.size()) {
            fields << line.sliced(start); // blanks at the end of a line are a field
        } else if (first == end) {
            fields << QString();
        } else {
            // As many letters go as there are blanks in the tail, and the closing quote unless text follows it.
            const QString behind = line.sliced(isQuoted ? close + 1 : first, end - (isQuoted ? close + 1 : first));
            const QString tail = tailOf(behind);
            const bool closes = isQuoted && tail.size() == behind.size();
            fields << line.sliced(open, end - open - tail.count(u' ') - (closes ? 1 : 0));
        }
        if (comma < 0) {
            return fields;
        }
        start = comma + 1;
    }
}

// Lines of a text, whose last one needs no end.
QStringList plainLines(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QStringList lines = text.split(u'\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

class PlainImport
{
public:
    explicit PlainImport(Nodes& nodes) : m_nodes(nodes)
    {
        for (const Node& node : nodes) {
            remember(node);
        }
    }

    // The number of the error that the import ends with, 0 when there is none.
    int run(const QStringList& lines)
    {
        for (const QString& line : lines) {
            const QStringList fields = plainFields(line);
            promise(clsImporter::PSplit(line) == fields, "a line has the fields of a plain cut");
            if (fields.size() < 3) {
                return static_cast<int>(ErrorNumber::SubscriptOutOfRange);
            }
            int parent = 0;
            int level = 0;
            for (const QString& name : fields[2].split(u'\\')) {
                if (!m_categories.contains({parent, name})) {
                    if (level == MaximumCategoryLevel) {
                        return static_cast<int>(ErrorNumber::OutOfStackSpace);
                    }
                    add({parent, 0, false, name, QString()});
                }
                parent = m_categories.value({parent, name});
                ++level;
            }
            add({parent, 0, true, fields[0], fields[1]});
        }
        return 0;
    }

private:
    void add(Node node)
    {
        node.id = ++m_lastId;
        m_nodes.push_back(node);
        remember(node);
    }
    void remember(const Node& node)
    {
        const std::pair<int, QString> place(node.parent, node.name);
        if (!node.isProduct && !m_categories.contains(place)) { // of two equal names the first is found
            m_categories.insert(place, node.id);
        }
    }

    Nodes& m_nodes;
    QHash<std::pair<int, QString>, int> m_categories; // by parent and name
    int m_lastId = lastIdOfSmallShop;
};

// The checks ----------------------------------------------------------------------------------------------------------

void readBytes(ShopSession& session, const QByteArray& bytes)
{
    XmlFile file;
    file.parse(bytes);
    readShop(session, file);
    session.registerShop();
}

int errorOfImport(ShopSession& session, const QString& path)
{
    qsizetype last = 0;
    const auto progress = [&last](qsizetype done, qsizetype total) {
        promise(done > last && done <= total, "progress goes forward and ends at the end");
        last = done;
    };
    try {
        clsImporter(session, progress).Import(path);
        return 0;
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number());
    }
}

void checkKeys(const ShopSession& session, const Nodes& nodes)
{
    for (const Node& node : nodes) {
        const QString id = QString::number(node.id);
        promise((node.isProduct ? session.objects.Product(id)->name : session.objects.Category(id)->name) == node.name,
                "every node is found by its key");
    }
    promise(session.objects.items().Count() == static_cast<int>(nodes.size()) + 1, "there is no key without a node");
}

// A text as it comes back from a shop file: the word for "no text" is none, and some characters have no form in XML.
QString asSaved(QString text)
{
    if (text == "HUERAGA"_L1) {
        return {};
    }
    return text.removeIf([](QChar letter) { return (letter < u' ' && letter != u'\t') || letter >= QChar(0xFFFE); });
}

void checkSaving(ShopSession& session, Nodes nodes)
{
    for (Node& node : nodes) {
        node.name = asSaved(node.name);
        node.description = asSaved(node.description);
    }
    readBytes(session, shopFileBytes(*session.shop));
    promise(nodesOf(*session.shop) == nodes, "what was imported saves and reads again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir directory; // nothing is written there
    static const MemoryFile file;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    file.fill(bytes);

    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(ApplicationFolder(directory.path()), prompts, clock);
    session.log.mute();
    readBytes(session, smallShop);

    Nodes expected = nodesOf(*session.shop);
    const int error = PlainImport(expected).run(plainLines(decodeText(bytes).text));
    promise(errorOfImport(session, file.path()) == error, "the import ends as it must");
    promise(nodesOf(*session.shop) == expected, "the shop has what the lines tell and nothing else");
    checkKeys(session, expected);
    if (expected.size() <= savedNodes && qHash(bytes) % oneInSaved == 0) {
        checkSaving(session, std::move(expected));
    }
    return 0;
}
