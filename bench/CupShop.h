// A shop like a real one, of any size: categories of 50 products, ten of them in each root category, with discounts,
// variants, related products, pictures and shipping costs.
#pragma once

class ShopSession;

// Puts a new shop with so many products into the session.
void fillShop(ShopSession& session, int products);
