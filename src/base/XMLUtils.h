// Look-ups and small helpers that all readers and writers of the shop file share.
#pragma once

#include "base/KeyedCollection.h"

#include <QString>

#include <pugixml.hpp>

// The node behind another in document order, among those below `top`; an empty node at the end. Walks of hostile depth
// use it, since it needs no stack.
pugi::xml_node nextNode(const pugi::xml_node& node, const pugi::xml_node& top);

// All text below the node, as it stands. A text may sit in the element itself (see XmlFile.h): callers never take
// value() of an element or of a text node by themselves.
QString nodeText(const pugi::xml_node& node);

// The first descendant of the element with that tag, at any depth, in document order; an empty node when there is none.
pugi::xml_node firstDescendant(const pugi::xml_node& element, const char* tag);

// The text of the first descendant with that tag, or the default when there is none.
QString GetNodeText(const pugi::xml_node& element, const char* tag, const QString& defaultText);

// Appends an element with that text to the parent and returns it. The text "HUERAGA" makes an element without text, one
// that will only hold children. Characters that XML cannot hold are left out.
pugi::xml_node AddChildElement(const pugi::xml_node& parent, const char* tag, const QString& value);

template <class T>
bool CollectionHasKey(const KeyedCollection<T>& collection, const QString& key)
{
    return collection.hasKey(key);
}

// "#RRGGBB" (every "#" is dropped, what stands behind six digits is not looked at) as a colour number with red in the
// low byte. ErrorNumber::TypeMismatch when a pair is missing, cut short or not hexadecimal.
int ColorFromHex(const QString& text);

// A colour number as "#RRGGBB". The argument is consumed: it is left divided by 256 twice.
QString ColorToHex(int& colour);
