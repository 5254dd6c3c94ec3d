#include "addressfile.h"

#include "soap.h"

#include <QtCore/QFile>

#include <cstdio>

namespace client {

AddressList addressesIn(const QString &fileName)
{
    QFile file(fileName);
    const bool isOpen = fileName == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return {{}, QString("The file %1 cannot be read: %2.").arg(fileName, file.errorString())};
    AddressList list;
    int number = 0;
    for (const QByteArray &bytes : file.readAll().split('\n')) {
        ++number;
        const QString line = QString::fromUtf8(bytes).section('#', 0, 0).trimmed();
        if (line.isEmpty())
            continue;
        if (!deviceServiceUrl(line).isValid())
            return {{}, QString("Line %1 of %2 is no address: %3").arg(number).arg(fileName, addressForms)};
        list.addresses += line;
    }
    if (file.error() != QFileDevice::NoError)
        return {{}, QString("The file %1 cannot be read: %2.").arg(fileName, file.errorString())};
    if (list.addresses.isEmpty())
        return {{}, QString("There is no address in %1.").arg(fileName)};
    return list;
}

} // namespace client
