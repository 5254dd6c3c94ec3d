#pragma once

#include "core/recordelement.h"

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/configurations.h>

namespace vorn {

// How an element becomes a record of this family. The record is a new one; its null flag is not touched. Each stands
// with its record.
void readValue(const RecordElement &element, OnvifVideoSourceConfiguration &configuration);
void readValue(const RecordElement &element, OnvifVideoEncoderConfiguration &configuration);
void readValue(const RecordElement &element, OnvifAudioSourceConfiguration &configuration);
void readValue(const RecordElement &element, OnvifAudioOutputConfiguration &configuration);
void readValue(const RecordElement &element, OnvifAudioEncoderConfiguration &configuration);
void readValue(const RecordElement &element, OnvifAudioDecoderConfiguration &configuration);
void readValue(const RecordElement &element, OnvifMetadataConfiguration &configuration);
void readValue(const RecordElement &element, OnvifPtzConfiguration &configuration);
void readValue(const RecordElement &element, OnvifVideoAnalyticsConfiguration &configuration);

// A list replaces the one that was there.
void readValue(const RecordElement &element, OnvifAnalyticsEngineConfigurationVector &modules);
void readValue(const RecordElement &element, OnvifRuleEngineConfigurationVector &rules);

} // namespace vorn
