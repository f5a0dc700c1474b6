#include "pages/TemplateUtils.h"

#include "base/RuntimeError.h"
#include "design/CSSClass.h"

#include <QStringBuilder>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool IsYes(const QString& word)
{
    return word == "Yes"_L1;
}

QString TypeWord(ImageSelection type)
{
    return type == ImageSelection::Image ? u"IMAGE"_s : u"TEXT"_s;
}

using ImageValues = std::array<VariableValue, ImageKeys::Count>;

QString PicturePath(const QString& picturesFolder, const QString& name)
{
    return name.contains(u':') ? name : QString(picturesFolder % name);
}

ImageValues ValuesOf(const PageContext& context, clsSelectedImage& image)
{
    return {TypeWord(image.SelectionType), PicturePath(context.picturesFolder(), image.imageFileName), image.TextValue,
            image.WidthBmp(), image.HeightBmp()};
}

void AddValues(Variables& vars, const ImageKeys& keys, ImageValues values)
{
    for (std::size_t i = 0; i < ImageKeys::Count; ++i)
        vars.Add(keys.names()[i], std::move(values[i]));
}

} // namespace

QString ServerAddress()
{
    return u"http://previewmode/"_s;
}

QString GetCssText(const CSSClass& style)
{
    QString rule = u".%1{background-color : %2;color : %3;font : "_s.arg(style.CSSName, style.BackGroundColor,
                                                                         style.ForeGroundColor);
    if (IsYes(style.IsBold))
        rule += " bold "_L1;
    if (IsYes(style.IsCursive))
        rule += " italic "_L1;
    rule += u' ' + style.FontSize + u"  "_s + style.FontName + u';';
    if (IsYes(style.IsUndcelined) || IsYes(style.IsLineThrugh)) {
        rule += "text-decoration : "_L1;
        if (IsYes(style.IsUndcelined))
            rule += " underline "_L1;
        if (IsYes(style.IsLineThrugh))
            rule += " line-through "_L1;
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
    if (name.isEmpty())
        return {};
    if (name.contains(u':'))
        throw RuntimeError(ErrorNumber::NoSuchMember);
    return folder.picturesFolder() + name;
}

ImageKeys::ImageKeys(QStringView key)
{
    static constexpr std::array<QLatin1StringView, Count> Endings = {"_TYPE"_L1, "_FILENAME"_L1, "_TEXT"_L1,
                                                                     "_WIDTH"_L1, "_HEIGHT"_L1};
    for (std::size_t i = 0; i < Count; ++i)
        m_names[i] = key.toString() + Endings[i];
}

void AddImageVariables(Variables& vars, const PageContext& context, clsSelectedImage& selectedImage,
                       const ImageKeys& keys)
{
    AddValues(vars, keys, ValuesOf(context, selectedImage));
}

void AddSlotVariables(Variables& vars, const PageContext& context, ImageSlot slot)
{
    AddImageVariables(vars, context, *context.design().Image(slot), ImageKeys(TagOf(slot)));
}

SlotForRows::SlotForRows(const PageContext& context, ImageSlot slot)
    : m_context(context), m_image(context.design().Image(slot)), m_keys(TagOf(slot))
{
}

void SlotForRows::addTo(Variables& row)
{
    if (!m_values)
        m_values = ValuesOf(m_context, *m_image);
    AddValues(row, m_keys, *m_values);
}

void AddCustomPageList(Variables& vars, const PageContext& context, const clsSelectedCustomPages& selection)
{
    if (selection.selectedPages().isEmpty())
        return;
    VariableRows rows;
    for (const QString& name : selection.selectedPages()) {
        Variables row = context.newVariables();
        row.Add(u"name", name);
        row.Add(u"server", ServerAddress());
        rows.push_back(std::move(row));
    }
    vars.Add(selection.Tag, std::move(rows));
}

void AddOptions(Variables& vars, const ShopDesignClass& design, std::span<const DesignOption> options)
{
    const std::span<const DesignOptionRow> table = DesignOptionTable();
    for (const DesignOption option : options)
        vars.Add(table[static_cast<std::size_t>(option)].name, design.Option(option));
}
