#include "profiles.h"

#include <Media.nsmap>
#include <algorithm>
#include <memory>
#include <soapH.h>

namespace bench {
namespace {

/// Hands out what is left of the reply that the context is told to read.
std::size_t receive(soap *context, char *buffer, std::size_t size)
{
    QByteArrayView &rest = *static_cast<QByteArrayView *>(context->user);
    const qsizetype count = std::min(rest.size(), static_cast<qsizetype>(size));
    std::copy_n(rest.data(), count, buffer);
    rest = rest.sliced(count);
    return static_cast<std::size_t>(count);
}

int ignore(soap *, const char *)
{
    return SOAP_OK;
}

/// A context that reads from memory. It is kept from reply to reply, as clients do.
soap *newContext()
{
    soap *context = soap_new1(SOAP_C_UTFSTRING);
    context->frecv = receive;
    context->fignore = ignore; // else it refuses replies with a header that it is told to understand
    return context;
}

} // namespace

std::optional<qsizetype> readGsoap(const QByteArray &reply)
{
    static const std::unique_ptr<soap, void (*)(soap *)> context(newContext(), soap_free);
    QByteArrayView rest = reply;
    context->user = &rest;
    std::optional<qsizetype> profiles;
    {
        _trt__GetProfilesResponse response;
        if (soap_recv___trt__GetProfiles(context.get(), response) == SOAP_OK)
            profiles = static_cast<qsizetype>(response.Profiles.size());
    }
    soap_destroy(context.get());
    soap_end(context.get());
    return profiles;
}

} // namespace bench
