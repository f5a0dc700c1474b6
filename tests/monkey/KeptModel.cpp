#include "KeptModel.h"

#include "base/XmlText.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

using namespace Qt::StringLiterals;

namespace {

// The word of the format for an element without a text makes an empty one.
QString held(const QString& text)
{
    return text == u"HUERAGA"_s ? QString() : QString::fromUtf8(xmlUtf8FromText(text));
}

void add(QStringList& lines, int depth, std::initializer_list<QString> texts)
{
    QString line(depth, u' ');
    for (const QString& text : texts) {
        // One line a node, whatever its texts hold.
        line += u'|' + held(text).replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s);
    }
    lines << line;
}

void addCategory(QStringList& lines, int depth, const CategoryClass& category)
{
    add(lines, depth, {category.id, category.name, category.Description});
    for (const std::shared_ptr<CategoryClass>& child : category.categories) {
        addCategory(lines, depth + 1, *child);
    }
    for (const std::shared_ptr<ProductClass>& product : category.products) {
        add(lines, depth + 1,
            {product->id, product->name, product->Description, product->Code, product->Unit, product->LINK});
    }
}

class TellingFileCalls : public FileCalls
{
public:
    explicit TellingFileCalls(const std::function<void()>& whenKept) : m_whenKept(whenKept) {}

    std::unique_ptr<OpenFile> open(const QString& path, Access access) const override
    {
        return m_calls->open(path, access);
    }
    void rename(const QString& from, const QString& to) const override
    {
        m_calls->rename(from, to);
        if (to.endsWith(u"/shop.unsaved.xml"_s)) {
            m_whenKept();
        }
    }
    void flushFolder(const QString& folder) const override { m_calls->flushFolder(folder); }
    std::optional<qint64> freeRoom(const QString& folder) const override { return m_calls->freeRoom(folder); }

private:
    std::unique_ptr<FileCalls> m_calls = systemFileCalls();
    std::function<void()> m_whenKept;
};

} // namespace

QStringList outlineOf(const ShopClass& shop)
{
    QStringList lines;
    add(lines, 0, {shop.name, shop.Description, shop.shop_currency});
    for (const std::shared_ptr<CategoryClass>& category : shop.categories) {
        addCategory(lines, 1, *category);
    }
    for (const std::shared_ptr<CSSClass>& style : shop.CSSs) {
        add(lines, 1, {u"style"_s, style->CSSName});
    }
    for (const std::shared_ptr<CustomPageClass>& page : shop.CustomPages) {
        add(lines, 1, {u"page"_s, page->pageName});
    }
    return lines;
}

std::unique_ptr<FileCalls> fileCallsThatTell(const std::function<void()>& whenKept)
{
    return std::make_unique<TellingFileCalls>(whenKept);
}
