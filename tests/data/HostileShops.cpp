#include "data/HostileShops.h"

namespace {

QByteArray shop(const QByteArray& elements, const QByteArray& version = "1.2.0")
{
    return "<Tarnwick><Shop><Version>" + version +
           "</Version><Name>S</Name><Description/><MaxProductId>1</MaxProductId><SelectedCountries/>" + elements +
           "</Shop></Tarnwick>";
}

QByteArray element(const QByteArray& name, const QByteArray& content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

// That many elements of one name, nested.
QByteArray nested(const QByteArray& name, int depth, const QByteArray& content)
{
    return ('<' + name + '>').repeated(depth) + content + ("</" + name + '>').repeated(depth);
}

QByteArray shippingTypes(int count)
{
    QByteArray types;
    for (int type = 0; type < count; ++type) {
        types += element("Type", element("Name", QByteArray::number(type)));
    }
    return element("ShopShipping", types);
}

QByteArray product(const QByteArray& elements)
{
    return element("Product", "<Related/>" + elements);
}

// Categories nested as deep as they may be, each with nothing but an id.
QByteArray categories(const QByteArray& content)
{
    constexpr int deepest = 500;
    QByteArray start;
    for (int id = 0; id < deepest; ++id) {
        start += "<Category>" + element("Id", 'c' + QByteArray::number(id));
    }
    return start + content + QByteArray("</Category>").repeated(deepest);
}

QByteArray nestedTaxes(int size)
{
    return shop(element("Taxes", nested("Type", size, "<Name>T</Name>")));
}

QByteArray nestedCharges(int size)
{
    return shop(element("Charges", nested("Type", size, "")));
}

QByteArray nestedFrames(int size)
{
    return shop(shippingTypes(3) + element("ShopShippingCosts", nested("CostsFrame", size, "<Cost2>5</Cost2>")));
}

QByteArray nestedVariants(int size)
{
    return shop(element("Category", product(nested("MultiplePrice", size, "<MPrice>7</MPrice>"))));
}

QByteArray nestedBands(int size)
{
    return shop(element("ShopDiscount", "<Status>Depend</Status>" + nested("PriceFrame", size, "<To>9</To>")));
}

QByteArray nestedTypesOverElements(int size)
{
    return shop(element("ShopShipping", nested("Type", 1000, QByteArray("<x/>").repeated(size))));
}

QByteArray categoriesOverElements(int size)
{
    return shop(categories(element("x", QByteArray("<x/>").repeated(size))));
}

QByteArray categoriesOverOneDiscount(int size)
{
    return shop(categories(element("Discount", "<Status>No</Status>" + QByteArray("<x/>").repeated(size))));
}

QByteArray categoriesOverOneText(int size)
{
    return shop(categories(element("Description", QByteArray(size, 'd'))));
}

QByteArray textsInEachOther(int size)
{
    QByteArray ids;
    for (int i = 0; i < size; ++i) {
        ids += "<RId>1";
    }
    ids += QByteArray("</RId>").repeated(size);
    return shop(element("Category", element("Product", element("Related", ids))), "1.1.0");
}

QByteArray typesTimesFrames(int size)
{
    return shop(shippingTypes(1000) + element("ShopShippingCosts", QByteArray("<CostsFrame/>").repeated(size)));
}

QByteArray typesTimesProducts(int size)
{
    return shop(shippingTypes(1000) +
                element("Category", product("<Shipping><ShippingCost2>5</ShippingCost2></Shipping>").repeated(size)));
}

QByteArray taxesTimesProducts(int size)
{
    return shop(element("Taxes", QByteArray("<Type/>").repeated(size)) +
                element("Category", product("<ProductTaxes><Tax1>Y</Tax1></ProductTaxes>").repeated(size)));
}

QByteArray importOfRootCategories(int size)
{
    QByteArray lines;
    for (int i = 0; i < size; ++i) {
        lines += "n,d,c" + QByteArray::number(i) + '\n';
    }
    return lines;
}

QByteArray importOfDeepPaths(int size)
{
    return ("n,d," + QByteArray("x\\").repeated(499) + "x\n").repeated(size);
}

} // namespace

const std::vector<HostileInput>& hostileInputs()
{
    static const std::vector<HostileInput> inputs = {
        {"nested taxes", nestedTaxes, 20'000},
        {"nested charges", nestedCharges, 20'000},
        {"nested frames of costs", nestedFrames, 20'000},
        {"nested variants of a price", nestedVariants, 20'000},
        {"nested bands of a discount", nestedBands, 20'000},
        {"1,000 nested shipping types over elements", nestedTypesOverElements, 200'000},
        {"500 nested categories over elements", categoriesOverElements, 1'000'000},
        {"500 nested categories over one discount", categoriesOverOneDiscount, 200'000},
        {"500 nested categories over one text", categoriesOverOneText, 1'000'000},
        {"ids of related products in each other", textsInEachOther, 2'000, false, true},
        {"1,000 shipping types times frames", typesTimesFrames, 1'000},
        {"1,000 shipping types times products", typesTimesProducts, 10'000},
        {"taxes times products", taxesTimesProducts, 4'000},
        {"import of root categories", importOfRootCategories, 50'000, true},
        {"import of deep paths", importOfDeepPaths, 2'000, true},
    };
    return inputs;
}
