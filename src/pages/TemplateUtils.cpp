#include "pages/TemplateUtils.h"

#include "base/RuntimeError.h"
#include "design/CSSClass.h"

#include <QStringBuilder>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString typeWord(ImageSelection type)
{
    return type == ImageSelection::Image ? u"IMAGE"_s : u"TEXT"_s;
}

using ImageValues = std::array<VariableValue, ImageKeys::Count>;

// A file's path as an address in a page, which the first of these letters would end or make another one.
QString asAddress(QString path)
{
    const auto isPlain = [](QChar letter) {
        return letter != u'%' && letter != u'#' && letter != u'?' && letter != u'"';
    };
    if (!std::all_of(path.cbegin(), path.cend(), isPlain)) {
        path.replace(u'%', "%25"_L1).replace(u'#', "%23"_L1).replace(u'?', "%3F"_L1).replace(u'"', "%22"_L1);
    }
    return path;
}

QString PicturePath(const QString& picturesFolder, const QString& name)
{
    return name.contains(u':') ? name : asAddress(picturesFolder % name);
}

ImageValues valuesOf(const PageContext& context, clsSelectedImage& image)
{
    return {typeWord(image.SelectionType), PicturePath(context.picturesFolder(), image.imageFileName), image.TextValue,
            image.WidthBmp(), image.HeightBmp()};
}

void addValues(Variables& vars, const ImageKeys& keys, ImageValues values)
{
    for (std::size_t i = 0; i < ImageKeys::Count; ++i) {
        vars.Add(keys.names()[i], std::move(values[i]));
    }
}

} // namespace

QString serverAddress()
{
    return u"http://previewmode/"_s;
}

QString GetCssText(const CSSClass& style)
{
    QString rule = u".%1{background-color : %2;color : %3;font : "_s.arg(style.CSSName, style.BackGroundColor,
                                                                         style.ForeGroundColor);
    if (isYes(style.IsBold)) {
        rule += " bold "_L1;
    }
    if (isYes(style.IsCursive)) {
        rule += " italic "_L1;
    }
    rule += u' ' + style.FontSize + u"  "_s + style.FontName + u';';
    if (isYes(style.IsUndcelined) || isYes(style.IsLineThrugh)) {
        rule += "text-decoration : "_L1;
        if (isYes(style.IsUndcelined)) {
            rule += " underline "_L1;
        }
        if (isYes(style.IsLineThrugh)) {
            rule += " line-through "_L1;
        }
        rule += "; "_L1;
    }
    return rule + u'}';
}

QString FullPicturePath(const ApplicationFolder& folder, const QString& name)
{
    return PicturePath(folder.picturesFolder(), name);
}

QString SelectedPicturePath(const ApplicationFolder& folder, CategoryClass& category)
{
    const QString& name = category.selectedImage()->imageFileName;
    if (name.isEmpty()) {
        return {};
    }
    if (name.contains(u':')) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    return asAddress(folder.picturesFolder() + name);
}

ImageKeys::ImageKeys(QStringView key)
{
    static constexpr std::array<QLatin1StringView, Count> endings = {"_TYPE"_L1, "_FILENAME"_L1, "_TEXT"_L1,
                                                                     "_WIDTH"_L1, "_HEIGHT"_L1};
    for (std::size_t i = 0; i < Count; ++i) {
        m_names[i] = key.toString() + endings[i];
    }
}

void AddImageVariables(Variables& vars, const PageContext& context, clsSelectedImage& selectedImage,
                       const ImageKeys& keys)
{
    addValues(vars, keys, valuesOf(context, selectedImage));
}

void addSlotVariables(Variables& vars, const PageContext& context, ImageSlot slot)
{
    AddImageVariables(vars, context, *context.design().Image(slot), ImageKeys(tagOf(slot)));
}

SlotForRows::SlotForRows(const PageContext& context, ImageSlot slot)
    : m_context(context), m_image(context.design().Image(slot)), m_keys(tagOf(slot))
{
}

void SlotForRows::addTo(Variables& row)
{
    if (!m_values) {
        m_values = valuesOf(m_context, *m_image);
    }
    addValues(row, m_keys, *m_values);
}

void AddCustomPageList(Variables& vars, const PageContext& context, const clsSelectedCustomPages& selection)
{
    if (selection.selectedPages().isEmpty()) {
        return;
    }
    VariableRows rows;
    for (const QString& name : selection.selectedPages()) {
        Variables row = context.newVariables();
        row.Add(u"name", name);
        row.Add(u"server", serverAddress());
        rows.push_back(std::move(row));
    }
    vars.Add(selection.Tag, std::move(rows));
}

void addOptions(Variables& vars, const ShopDesignClass& design, std::span<const DesignOption> options)
{
    const std::span<const DesignOptionRow> table = designOptionTable();
    for (const DesignOption option : options) {
        vars.Add(table[static_cast<std::size_t>(option)].name, design.Option(option));
    }
}
