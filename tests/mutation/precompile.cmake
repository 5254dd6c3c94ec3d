# Included by scripts/mutate at the end of project(): a mutant is built faster when Qt's headers are compiled already.
function(vornsdk_precompile)
    target_precompile_headers(vornsdk-util PRIVATE <QtCore/QStringDecoder> <QtXml/QDomDocument> <pugixml.hpp>)
    target_precompile_headers(vornsdk-onvif PRIVATE <QtXml/QDomDocument> <vorn/onvif/configurations.h>)
endfunction()
cmake_language(DEFER CALL vornsdk_precompile)
