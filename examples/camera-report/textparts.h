#pragma once

#include "report.h"
#include "textlines.h"

namespace client {

// Each of these writes a section of the report.

void write(Lines &lines, const vorn::OnvifDeviceInformation &information);
void write(Lines &lines, const ClockReading &reading);
void write(Lines &lines, const vorn::OnvifCapabilities &capabilities);
void write(Lines &lines, const vorn::OnvifScopeMap &scopes);
void write(Lines &lines, const vorn::OnvifNetworkInterfaceVector &interfaces);
void write(Lines &lines, const vorn::OnvifNetworkGateway &gateway);
void write(Lines &lines, const vorn::OnvifRelayOutputVector &relays);

} // namespace client
