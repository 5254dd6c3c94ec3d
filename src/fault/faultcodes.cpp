// Checks the tables of faultcodes.h while they are compiled.

#include "faultcodes.h"

#include "tablechecks.h"

namespace vorn::faultcodes {

// The last enumerator of each type.
static_assert(eachStandsInOneRow(OnvifFault::UnknownTransportError, Rows(soapCodes), Rows(httpCodes),
                                 Rows(transportCodes), Rows(otherCodes)));
static_assert(allAreBelow(Rows(soapCodes), OnvifFault::CriticalError));
static_assert(allAreBelow(Rows(soapCodes), OnvifFault::OptionalActionNotSupported));

static_assert(allAreUnambiguous(Rows(soapCodes)));

} // namespace vorn::faultcodes
