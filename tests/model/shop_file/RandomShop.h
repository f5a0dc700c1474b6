// Random shops, with odd texts in every member, and their description for comparisons.
#pragma once

#include "model/ShopClass.h"
#include "model/ShopSession.h"

#include <QString>
#include <QStringList>

#include <random>

class RandomShop
{
public:
    explicit RandomShop(unsigned seed) : m_random(seed) {}

    // Fills the session's shop, which must be new, with all that a file can hold and give back.
    void fill(ShopSession& session);

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    bool chance(int percent) { return number(1, 100) <= percent; }
    QString text();
    QString uniqueText();
    QString decimal();
    QString date();
    void fillDiscount(clsDiscount& discount, bool hasBands);
    void fillImage(clsSelectedImage& image);
    void fillCategory(ShopSession& session, const std::shared_ptr<CategoryClass>& category, int level);
    void fillProduct(ShopSession& session, ProductClass& product);
    void fillTables(ShopClass& shop);
    void fillDesign(ShopDesignClass& design);

    std::mt19937 m_random;
    int m_unique = 0;
    int m_id = 1;
};
