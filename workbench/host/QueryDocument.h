#pragma once

#include <string>

#include "automation/Object.h"

namespace tsln::workbench {

/// A query result as an XML document object. The text is handed out as it is ("xml"); nodes are made of it
/// when the first is asked for.
///
/// The document and its nodes answer "xml", "text", "nodeName", "nodeType", "childNodes", "firstChild",
/// "lastChild", "nextSibling", "previousSibling", "parentNode", "hasChildNodes", "getAttribute",
/// "selectNodes" and "selectSingleNode" (XPath); the document also "documentElement". Lists of nodes answer
/// "length", "item", "nextNode" and "reset". A node that is not there is nothing. A path that is no XPath for
/// nodes raises HostError(code::fail).
ObjectPtr makeQueryDocument(std::string xml);

}  // namespace tsln::workbench
