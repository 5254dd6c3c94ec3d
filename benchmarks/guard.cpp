#include "guard.h"

#include "replies.h"

#include <QtCore/QFile>

#include <iostream>

namespace bench {

std::map<std::string, double> readRatios(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "cannot read " + path.toStdString());
    std::map<std::string, double> ratios;
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().trimmed().split('\t');
        require(cells.size() == 2, path.toStdString() + " has a line without a name and a number");
        ratios[cells[0].toStdString()] = cells[1].toDouble();
    }
    return ratios;
}

void writeRatios(const QString &path, const std::map<std::string, double> &ratios)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "cannot write " + path.toStdString());
    for (const auto &[name, ratio] : ratios)
        file.write(QByteArray::fromStdString(name) + '\t' + QByteArray::number(ratio, 'f', 4) + '\n');
}

bool checkRatios(std::ostream &output, const std::map<std::string, double> &ratios,
                 const std::map<std::string, double> &committed)
{
    bool good = true;
    const auto report = [&](const std::string &name, const std::string &what) {
        output << name << ' ' << what << '\n';
        good = false;
    };
    for (const auto &[name, ratio] : ratios) {
        const auto known = committed.find(name);
        if (known == committed.end())
            report(name, "is not among the committed ratios");
        else if (ratio > known->second * 1.1)
            report(name,
                   "takes " + std::to_string(ratio) + " of setContent; committed is " + std::to_string(known->second));
    }
    for (const auto &[name, ratio] : committed) {
        if (ratios.count(name) == 0)
            report(name, "is committed but was not measured");
    }
    return good;
}

} // namespace bench
