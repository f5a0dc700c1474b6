// Which names a page of the owner's can bear. A link to it has the name in its address and as its text, each as it
// stands, and the visitor's browser and the shop's server read the address by their own rules.
#pragma once

#include <QString>

// Whether a link leads to the page of that name and shows the name as it is. An empty name has no link.
bool linkCarries(const QString& name);
