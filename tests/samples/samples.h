#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <algorithm>
#include <ostream>
#include <vector>

namespace test {

inline QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A file below samples/, by its path from there.
struct Sample
{
    std::string path;

    QString fileName() const { return QStringLiteral(SAMPLES_FOLDER "/") + QString::fromStdString(path); }

    QByteArray bytes() const { return contentsOf(fileName()); }
};

inline void PrintTo(const Sample &sample, std::ostream *stream)
{
    *stream << sample.path;
}

inline std::vector<Sample> allSamples()
{
    const QDir folder(QStringLiteral(SAMPLES_FOLDER));
    std::vector<Sample> samples;
    QDirIterator files(folder.path(), {QStringLiteral("*.xml")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        samples.push_back({folder.relativeFilePath(files.next()).toStdString()});
    std::sort(samples.begin(), samples.end(), [](const Sample &a, const Sample &b) { return a.path < b.path; });
    return samples;
}

} // namespace test
