// Whether the library reads from views, which is found out while it is compiled.

#include "core/recordelement.h"

static_assert(vorn::offersViews<vorn::XmlResponse> == (OWN_UTIL_OFFERS_VIEWS == 1));
