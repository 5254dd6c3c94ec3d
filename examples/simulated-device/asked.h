#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace simulator {

/// What a request asks for.
struct Asked
{
    QString action; ///< name of the first element in its Body; only letters and digits, as files are named after it
    QString profileToken;
    QString protocol; ///< of a stream: "UDP" or "RTSP"
    bool isDeviceIO =
        false; ///< whether the Device I/O service is asked, of which some operations have a twin elsewhere

    /// What tells it from other requests with this action; empty if nothing does.
    QString variant() const;
};

Asked askedIn(const QByteArray &message);

} // namespace simulator
