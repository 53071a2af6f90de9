#pragma once

#include <string>

#include "automation/Object.h"

namespace tsln::workbench {

/// Creates an XML document object for a query result. "xml" returns the text unchanged; it is parsed when a node is
/// first requested.
///
/// The document and its nodes have "xml", "text", "nodeName", "nodeType", "childNodes", "firstChild", "lastChild",
/// "nextSibling", "previousSibling", "parentNode", "hasChildNodes", "getAttribute", "selectNodes" and
/// "selectSingleNode" (XPath); the document also has "documentElement". Lists of nodes have "length", "item",
/// "nextNode" and "reset". A missing node is Nothing. A path that is no XPath for nodes raises HostError(code::fail).
ObjectPtr makeQueryDocument(std::string xml);

}  // namespace tsln::workbench
