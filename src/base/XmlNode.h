// The name of the XML library's node, for headers that declare what reads or writes one and need nothing else of the
// library.
#pragma once

namespace pugi {
class xml_node;
} // namespace pugi
