#include "pages/preview/PreviewPage.h"

#include "design/PageTable.h"
#include "pages/RenderPage.h"
#include "pages/TemplateUtils.h"

#include <utility>

using namespace Qt::StringLiterals;

PreviewPage::PreviewPage(ShopSession& session, Templates_Set& templates, PreviewSurface& surface)
    : m_context(session, templates), m_surface(surface)
{
}

void PreviewPage::ShowPreviewPage(const QString& pageName, const PageObject& pageObject)
{
    Variables frame = m_context.newVariables();
    m_lastPageName = pageName;
    m_lastPageObject = pageObject;

    frame.Add(u"main_part", RenderPage(m_context, pageName, pageObject));
    for (const QString& piece : pageNamesBy(&PageRow::composing)) {
        frame.Add(piece, RenderPage(m_context, piece, {}));
    }

    VariableRows styles;
    for (const auto& style : m_context.shop().CSSs) {
        Variables row = m_context.newVariables();
        row.Add(u"css", GetCssText(*style));
        styles.push_back(std::move(row));
    }
    frame.Add(u"csss", std::move(styles));

    const std::shared_ptr<Template>& layout = m_context.templates().layout_template;
    if (layout == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const QString document = layout->Get_String(frame) + "\r\n"_L1;
    while (!m_surface.replaceDocument(document)) {
        m_surface.goBlank();
    }
}
