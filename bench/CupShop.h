// A shop like a real one, of any size: categories of 50 products, ten of them in each root category, with discounts,
// variants, related products, pictures and shipping costs.
#pragma once

class ApplicationFolder;
class ShopSession;

// Puts a new shop with so many products into the session.
void fillShop(ShopSession& session, int products);

// Puts what the program needs into a folder: the factory templates, one country, and room for pictures.
void makeProgramFolder(const ApplicationFolder& folder);

// The same with a saved shop of so many products.
void makeShopFolder(const ApplicationFolder& folder, int products);
