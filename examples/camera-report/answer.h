#pragma once

#include "httpexchange.h"
#include "soap.h"

#include <vorn/onvif/faults.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace client {

/// What came of a request.
struct Answer
{
    Request request;
    HttpReply http;
    QByteArray bytes;       ///< the reply, or the document that stands for a failure
    vorn::OnvifFault fault; ///< what the library makes of the bytes
    bool isReply = false;   ///< whether the reply is the answer to the request

    /// Without a reply: what is made of nothing.
    Answer() = default;

    /// \a number tells the verdict from others, if anyone asks it.
    Answer(const Request &asked, const HttpReply &reply, unsigned int number);

    /// One sentence if the request failed; empty if the reply is the answer. Text of the device's is in it verbatim.
    QString complaint() const;

    /// Whether the device gave a reply, good or bad.
    bool isReceived() const { return http.failure == TransportFailure::None; }

    /// Whether the device refused for want of a valid user and password.
    bool isRefusal() const;

    /// The path of the element in which the answer stands.
    QString root() const;
};

} // namespace client
