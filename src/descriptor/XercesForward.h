// The names of Xerces that headers need, without its headers.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
class DOMNode;
class HandlerBase;
class XercesDOMParser;
XERCES_CPP_NAMESPACE_END
