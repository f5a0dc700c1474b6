// What the pages share: picture paths, the text of a style, and the variables that stand on several pages.
#pragma once

#include "base/ApplicationFolder.h"
#include "design/DesignOptions.h"
#include "design/ShopDesignClass.h"
#include "design/clsSelectedCustomPages.h"
#include "design/clsSelectedImage.h"
#include "model/CategoryClass.h"
#include "pages/PageContext.h"
#include "template_engine/Variables.h"

#include <QString>
#include <QStringView>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>

// The pseudo-server: every link of a page that calls the shop begins with it.
QString serverAddress();

// The rule of one style, as it stands in a style sheet. Nothing is checked or escaped.
QString GetCssText(const CSSClass& style);

// The path of a picture under pictures/; a name that contains a ":" is a complete address and is returned as it is.
QString FullPicturePath(const ApplicationFolder& folder, const QString& name);

// The path of a category's picture; empty when it has none. ErrorNumber::NoSuchMember when the name contains a ":":
// then the picture itself is asked for, which a category deliberately does not have.
QString SelectedPicturePath(const ApplicationFolder& folder, CategoryClass& category);

// The five names of an image's variables: a key with five endings. Rows share one, so that no name is put together
// twice.
class ImageKeys
{
public:
    explicit ImageKeys(QStringView key);

    static constexpr std::size_t Count = 5;
    const std::array<QString, Count>& names() const { return m_names; }

private:
    std::array<QString, Count> m_names;
};

// Adds key + "_TYPE", "_FILENAME", "_TEXT", "_WIDTH" and "_HEIGHT". A slot that shows nothing
// deliberately has the type "TEXT", too. Errors as for clsSelectedImage::WidthBmp.
void AddImageVariables(Variables& vars, const PageContext& context, clsSelectedImage& selectedImage,
                       const ImageKeys& keys);
// The same for a slot of the design, whose key is its tag.
void addSlotVariables(Variables& vars, const PageContext& context, ImageSlot slot);

// The variables of a design slot for rows that all show it: worked out by the first row.
class SlotForRows
{
public:
    SlotForRows(const PageContext& context, ImageSlot slot);

    void addTo(Variables& row);

private:
    PageContext m_context;
    std::shared_ptr<clsSelectedImage> m_image;
    ImageKeys m_keys;
    std::optional<std::array<VariableValue, ImageKeys::Count>> m_values;
};

// Adds the list of a menu's custom pages under the selection's tag; nothing when no page is selected.
void AddCustomPageList(Variables& vars, const PageContext& context, const clsSelectedCustomPages& selection);

// Adds design options under their own names, in the order given.
void addOptions(Variables& vars, const ShopDesignClass& design, std::span<const DesignOption> options);
