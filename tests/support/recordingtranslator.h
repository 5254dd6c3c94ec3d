#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QTranslator>
#include <gtest/gtest.h>

#include <vector>

namespace test {

/// Notes what it is asked to translate, and translates nothing.
class RecordingTranslator : public QTranslator
{
public:
    struct Request
    {
        QByteArray context;
        QByteArray sourceText;
        QByteArray disambiguation; // null if there is none
        int n;
    };

    QString translate(const char *context, const char *sourceText, const char *disambiguation, int n) const override
    {
        requests.push_back({context, sourceText, disambiguation, n});
        return {};
    }

    bool isEmpty() const override { return false; }

    mutable std::vector<Request> requests;
};

/// Translates by writing in capitals.
class UpperCaseTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return QString::fromUtf8(sourceText).toUpper();
    }

    bool isEmpty() const override { return false; }
};

/// For tests of what a translator is asked.
class TranslationTest : public testing::Test
{
protected:
    TranslationTest() { QCoreApplication::installTranslator(&translator); }

    RecordingTranslator::Request last() const
    {
        return translator.requests.empty() ? RecordingTranslator::Request{} : translator.requests.back();
    }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    RecordingTranslator translator;
};

} // namespace test
