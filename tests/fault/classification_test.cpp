// Which codes a reply gives.

#include "expectations.h"
#include "soapfault.h"
#include "support/printing.h"

#include <vorn/onvif/faults.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

using test::SoapFault;
using vorn::OnvifFault;

namespace {

struct Codes
{
    int fault;
    int subcode;
    int specific;

    bool operator==(const Codes &other) const
    {
        return fault == other.fault && subcode == other.subcode && specific == other.specific;
    }
};

void PrintTo(const Codes &codes, std::ostream *stream)
{
    *stream << '(' << codes.fault << ", " << codes.subcode << ", " << codes.specific << ')';
}

Codes codesOf(const QByteArray &reply)
{
    const OnvifFault fault(reply, "", 0);
    return {fault.faultType, fault.subcodeType, fault.specificType};
}

int faultTypeOf(const char *code)
{
    return std::strcmp(code, "Sender") == 0 ? 4 : 5;
}

TEST(FaultEnumerations, haveTheirValues)
{
    for (const test::CodeName &code : test::faultTypes)
        EXPECT_EQ(code.enumerator, code.value) << code.name;
    for (const test::CodeName &code : test::subcodeTypes)
        EXPECT_EQ(code.enumerator, code.value) << code.name;
    for (const test::CodeName &code : test::specificTypes)
        EXPECT_EQ(code.enumerator, code.value) << code.name;
    EXPECT_EQ(OnvifFault::NoSpecific, 0);
    EXPECT_EQ(std::size(test::faultTypes), 20U);
    EXPECT_EQ(std::size(test::subcodeTypes), 16U);
    EXPECT_EQ(std::size(test::specificTypes), 110U);
}

TEST(FaultClassification, knowsTheCodesOfSoap)
{
    EXPECT_EQ(codesOf(SoapFault{"s:VersionMismatch"}.document()), (Codes{1, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:MustUnderstand"}.document()), (Codes{2, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:DataEncodingUnknown"}.document()), (Codes{3, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender"}.document()), (Codes{4, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Receiver"}.document()), (Codes{5, 0, 0}));
}

TEST(FaultClassification, readsNoSubcodeBelowTheOtherCodes)
{
    for (const char *code : {"s:VersionMismatch", "s:MustUnderstand", "s:DataEncodingUnknown", "s:Other"}) {
        const Codes codes = codesOf(SoapFault{code, "ter:InvalidArgVal", "ter:NoProfile", "HTTP 404"}.document());
        EXPECT_EQ(codes.subcode, 0) << code;
        EXPECT_EQ(codes.specific, 0) << code;
        EXPECT_NE(codes.fault, 8) << code;
    }
}

TEST(FaultClassification, prefixesDoNotMatter)
{
    for (const char *prefix : {"", "s", "env", "SOAP-ENV", "undeclared"}) {
        for (const char *valuePrefix : {"", "s", "ter", "http://www.onvif.org/ver10/error", "a:b"}) {
            const QByteArray p(valuePrefix);
            EXPECT_EQ(codesOf(SoapFault{p + ":Sender", p + ":InvalidArgVal", p + ":NoProfile", "x", prefix}.document()),
                      (Codes{4, 8, 57}))
                << prefix << ' ' << valuePrefix;
        }
    }
}

TEST(FaultClassification, anotherCodeIsUnknown)
{
    for (const char *code : {"", "Sender", "s:sender", "s:SENDER", "s:Sender ", "s:Sender\n", "s:Client", ":",
                             "s:", "Sender:", "s:XSender", "s:Senders", "s:Sender:x", "s.Receiver"})
        EXPECT_EQ(codesOf(SoapFault{code}.document()), (Codes{17, 0, 0})) << code;
    EXPECT_TRUE(OnvifFault(SoapFault{"Sender"}.document(), "", 0).hasError());
}

TEST(FaultClassification, onlyTheEndOfAValueCounts)
{
    EXPECT_EQ(codesOf(SoapFault{"anything at all:Sender"}.document()), (Codes{4, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{" s:Sender"}.document()), (Codes{4, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "x y:z:InvalidArgVal", "::NoProfile"}.document()), (Codes{4, 8, 57}));
}

TEST(FaultClassification, knowsEachSubcodeUnderItsCode)
{
    for (const test::SubcodeRow &row : test::subcodes) {
        const QByteArray code = QByteArray("s:") + row.code;
        const QByteArray subcode = QByteArray("ter:") + row.subcode;
        EXPECT_EQ(codesOf(SoapFault{code, subcode}.document()), (Codes{faultTypeOf(row.code), row.value, 0}))
            << row.code << ' ' << row.subcode;
        EXPECT_EQ(codesOf(SoapFault{code, subcode, "ter:Unheard"}.document()),
                  (Codes{faultTypeOf(row.code), row.value, 0}));
    }
}

TEST(FaultClassification, knowsNoOtherSubcodeUnderACode)
{
    for (const char *code : {"Sender", "Receiver"}) {
        for (const test::CodeName &subcode : test::subcodeTypes) {
            bool known = false;
            for (const test::SubcodeRow &row : test::subcodes)
                known = known || (std::strcmp(row.code, code) == 0 && row.value == subcode.value);
            if (known)
                continue;
            EXPECT_EQ(
                codesOf(
                    SoapFault{QByteArray("s:") + code, QByteArray("ter:") + subcode.name, "ter:NoProfile"}.document()),
                (Codes{faultTypeOf(code), 0, 0}))
                << code << ' ' << subcode.name;
        }
    }
}

TEST(FaultClassification, unknownSubcodeIsNone)
{
    for (const char *subcode : {"", "InvalidArgVal", "ter:invalidargval", "ter:InvalidArgVal ", "ter:Unheard", ":"})
        EXPECT_EQ(codesOf(SoapFault{"s:Sender", subcode, "ter:NoProfile"}.document()), (Codes{4, 0, 0})) << subcode;
}

/// The value of \a specific under a parent; 0 if it is not recognised there.
int expectedSpecific(const test::SubcodeRow &parent, const char *specific)
{
    for (const test::SpecificRow &row : test::specificCodes) {
        if (std::strcmp(row.code, parent.code) == 0 && std::strcmp(row.subcode, parent.subcode) == 0
            && std::strcmp(row.specific, specific) == 0)
            return row.value;
    }
    return 0;
}

TEST(FaultClassification, knowsEachSpecificCodeUnderItsParentsAndNoOther)
{
    int recognised = 0;
    for (const test::SubcodeRow &parent : test::subcodes) {
        for (const test::CodeName &specific : test::specificTypes) {
            const int expected = expectedSpecific(parent, specific.name);
            EXPECT_EQ(codesOf(SoapFault{QByteArray("e:") + parent.code, QByteArray("ter:") + parent.subcode,
                                        QByteArray("x:") + specific.name}
                                  .document()),
                      (Codes{faultTypeOf(parent.code), parent.value, expected}))
                << parent.code << ' ' << parent.subcode << ' ' << specific.name;
            recognised += expected != 0 ? 1 : 0;
        }
    }
    EXPECT_EQ(recognised, 114); // 110 codes, of which two are known under three parents
}

TEST(FaultClassification, literalsThatStartAlikeAreToldApart)
{
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:Tag"}.document()), (Codes{4, 3, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:TagMismatch"}.document()), (Codes{4, 2, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:OperationProhibited", "ter:Password"}.document()), (Codes{4, 10, 32}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:OperationProhibited", "ter:PasswordTooLong"}.document()),
              (Codes{4, 10, 33}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:InvalidArgs", "ter:NoEntity"}.document()), (Codes{4, 7, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:Action"}.document()), (Codes{4, 13, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:ActionNotSupported"}.document()), (Codes{4, 12, 0}));
}

TEST(FaultClassification, specificCodeIsReadWhereItStands)
{
    // Beside the first subcode, or as its value, it does not count.
    EXPECT_EQ(codesOf("<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Value>t:InvalidArgVal</Value>"
                      "</Subcode><Subcode><Value>t:NoProfile</Value></Subcode></Code></Fault></Body></Envelope>"),
              (Codes{4, 8, 0}));
    EXPECT_EQ(codesOf("<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Value>t:NoProfile</Value>"
                      "</Subcode></Code></Fault></Body></Envelope>"),
              (Codes{4, 0, 0}));
    EXPECT_EQ(codesOf("<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Subcode><Value>t:NoProfile</Value>"
                      "</Subcode></Subcode></Code></Fault></Body></Envelope>"),
              (Codes{4, 0, 0}));
}

struct NumberRow
{
    const char *number;
    int faultType;
};

const NumberRow httpNumbers[] = {{"400", 6}, {"401", 7}, {"404", 8}, {"405", 9}, {"415", 10}};

TEST(FaultClassification, senderWhoseReasonMentionsHttpIsAnHttpFailure)
{
    for (const NumberRow &row : httpNumbers) {
        const QByteArray reason = QByteArray("HTTP/1.1 ") + row.number + " refused";
        EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:NotAuthorized", {}, reason}.document()),
                  (Codes{row.faultType, 0, 0}))
            << row.number;
    }
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:InvalidArgVal", "ter:NoProfile", "HTTP"}.document()),
              (Codes{18, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", {}, {}, "xHTTPx 500"}.document()), (Codes{18, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", {}, {}, "HTTP: Unsupported protocol"}.document()), (Codes{18, 0, 0}));
}

TEST(FaultClassification, httpIsComparedWithCase)
{
    for (const char *reason : {"http 401", "Http 401", "401", ""}) {
        EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:NotAuthorized", {}, reason}.document()), (Codes{4, 11, 0}))
            << reason;
    }
}

TEST(FaultClassification, senderWithoutReasonHasItsSubcodeRead)
{
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:WellFormed"}.document()), (Codes{4, 1, 0}));
}

TEST(FaultClassification, reasonOfAReceiverIsNotRead)
{
    EXPECT_EQ(codesOf(SoapFault{"s:Receiver", {}, {}, "HTTP 404"}.document()), (Codes{5, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Receiver", "ter:Action", "ter:EmptyScope", "HTTP 404"}.document()),
              (Codes{5, 13, 79}));
}

QByteArray page(const QByteArray &title)
{
    return "<html><head><title>" + title + "</title></head><body/></html>";
}

QByteArray transport(const QByteArray &text)
{
    return "<Fault><Reason><Text>" + text + "</Text></Reason></Fault>";
}

TEST(FaultClassification, pageIsAnHttpFailureByItsTitle)
{
    for (const NumberRow &row : httpNumbers)
        EXPECT_EQ(codesOf(page(QByteArray("Error ") + row.number + "!")), (Codes{row.faultType, 0, 0})) << row.number;
    for (const char *part : {"40", "00", "01", "04", "05", "41", "15", "4 00"})
        EXPECT_EQ(codesOf(page(part)), (Codes{18, 0, 0})) << part;
    EXPECT_EQ(codesOf(page("500 Internal Server Error")), (Codes{18, 0, 0}));
    EXPECT_EQ(codesOf(page("")), (Codes{18, 0, 0}));
    EXPECT_EQ(codesOf(page("Couldn't resolve host name")), (Codes{18, 0, 0}));
}

TEST(FaultClassification, numbersAreLookedForInTheirOrderAnywhere)
{
    EXPECT_EQ(codesOf(page("415 405 404 401 400")), (Codes{6, 0, 0}));
    EXPECT_EQ(codesOf(page("415 405 404 401")), (Codes{7, 0, 0}));
    EXPECT_EQ(codesOf(page("415 405 404")), (Codes{8, 0, 0}));
    EXPECT_EQ(codesOf(page("415 405")), (Codes{9, 0, 0}));
    EXPECT_EQ(codesOf(page("1400")), (Codes{6, 0, 0}));
    EXPECT_EQ(codesOf(page("camera:40150")), (Codes{7, 0, 0}));
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", {}, {}, "404 HTTP 400"}.document()), (Codes{6, 0, 0}));
    EXPECT_EQ(codesOf(transport("405 and 401")), (Codes{7, 0, 0}));
}

struct TransportRow
{
    const char *text;
    int faultType;
};

const TransportRow transportTexts[] = {
    {"URL using bad/illegal format or missing URL", 11},
    {"Failure when receiving data from the peer", 12},
    {"Empty reply from Camera", 13},
    {"Transferred a partial file", 14},
    {"Couldn't resolve host name", 15},
    {"Unsupported protocol", 16},
};

TEST(FaultClassification, bareFaultIsATransportFailureByItsText)
{
    for (const TransportRow &row : transportTexts) {
        EXPECT_EQ(codesOf(transport(row.text)), (Codes{row.faultType, 0, 0})) << row.text;
        EXPECT_EQ(codesOf(transport(QByteArray("Error: ") + row.text + " (7)")), (Codes{row.faultType, 0, 0}))
            << row.text;
        EXPECT_EQ(codesOf(transport(QByteArray(row.text).toUpper())), (Codes{19, 0, 0})) << row.text;
        EXPECT_EQ(codesOf(transport(QByteArray(row.text).chopped(1))), (Codes{19, 0, 0})) << row.text;
        EXPECT_EQ(codesOf(transport(QByteArray(row.text).mid(1))), (Codes{19, 0, 0})) << row.text;
    }
    EXPECT_EQ(codesOf(transport("Empty reply from Server")), (Codes{19, 0, 0}));
    EXPECT_EQ(codesOf(transport("")), (Codes{19, 0, 0}));
}

TEST(FaultClassification, bareFaultMayHoldAnHttpNumber)
{
    for (const NumberRow &row : httpNumbers)
        EXPECT_EQ(codesOf(transport(QByteArray("server said ") + row.number)), (Codes{row.faultType, 0, 0}))
            << row.number;
    EXPECT_EQ(codesOf(transport("server said 500")), (Codes{19, 0, 0}));
}

TEST(FaultClassification, transportTextsComeBeforeNumbersAndInTheirOrder)
{
    EXPECT_EQ(codesOf(transport("400 Couldn't resolve host name")), (Codes{15, 0, 0}));
    for (std::size_t first = 0; first < std::size(transportTexts); ++first) {
        for (std::size_t second = first + 1; second < std::size(transportTexts); ++second) {
            EXPECT_EQ(
                codesOf(transport(QByteArray(transportTexts[second].text) + " 401 " + transportTexts[first].text)),
                (Codes{transportTexts[first].faultType, 0, 0}));
        }
    }
}

TEST(FaultClassification, ofAnythingElseIsNoFault)
{
    for (const QByteArray &reply : {
             QByteArray(),
             QByteArray(""),
             QByteArray("plain text 404"),
             QByteArray("<html><head><title>404</head></html>"),
             QByteArray("<html><body><title>404</title></body></html>"),
             QByteArray("<HTML><HEAD><TITLE>404</TITLE></HEAD></HTML>"),
             QByteArray("<Envelope><Body><GetProfilesResponse/></Body></Envelope>"),
             QByteArray("<Envelope><Body><Fault/></Body></Envelope>"),
             QByteArray("<Envelope><Body><Fault><Reason><Text>HTTP 404</Text></Reason></Fault></Body></Envelope>"),
             QByteArray("<Envelope><Body><Fault><Code>s:Sender</Code></Fault></Body></Envelope>"),
             QByteArray("<Envelope><Body><Fault><faultcode>s:Client</faultcode><faultstring>404</faultstring></Fault>"
                        "</Body></Envelope>"),
             QByteArray("<Envelope><Header><Fault><Code><Value>s:Sender</Value></Code></Fault></Header></Envelope>"),
             QByteArray("<Fault><Code><Value>s:Sender</Value></Code></Fault>"),
             QByteArray("<Reason><Text>404</Text></Reason>"),
         }) {
        const OnvifFault fault(reply, "", 0);
        EXPECT_EQ(fault.errorId(), 0) << reply.toStdString();
        EXPECT_FALSE(fault.hasError()) << reply.toStdString();
    }
}

TEST(FaultClassification, ofRepliesAsDevicesSendThem)
{
    // Blanks and line breaks around the sentence, several languages, a Detail block, an undeclared prefix.
    EXPECT_EQ(
        codesOf(
            "<?xml version='1.0' encoding='UTF-8'?>\r\n<SOAP-ENV:Envelope "
            "xmlns:SOAP-ENV='http://www.w3.org/2003/05/soap-envelope'>\r\n<SOAP-ENV:Header/>\r\n<SOAP-ENV:Body>\r\n"
            "<SOAP-ENV:Fault SOAP-ENV:encodingStyle='http://www.w3.org/2003/05/soap-encoding'>\r\n"
            "<SOAP-ENV:Code>\r\n<SOAP-ENV:Value>SOAP-ENV:Sender</SOAP-ENV:Value>\r\n<SOAP-ENV:Subcode>\r\n"
            "<SOAP-ENV:Value>ter:NotAuthorized</SOAP-ENV:Value>\r\n</SOAP-ENV:Subcode>\r\n</SOAP-ENV:Code>\r\n"
            "<SOAP-ENV:Reason>\r\n<SOAP-ENV:Text xml:lang='en'>\r\n   Sender not Authorized\r\n  </SOAP-ENV:Text>\r\n"
            "<SOAP-ENV:Text xml:lang='de'>HTTP 401</SOAP-ENV:Text></SOAP-ENV:Reason>\r\n"
            "<SOAP-ENV:Detail><SOAP-ENV:Text>HTTP 404 The action requested requires authorization"
            "</SOAP-ENV:Text></SOAP-ENV:Detail>\r\n</SOAP-ENV:Fault></SOAP-ENV:Body></SOAP-ENV:Envelope>"),
        (Codes{4, 11, 0}));
    // A reason over several lines.
    EXPECT_EQ(codesOf(SoapFault{"s:Sender", "ter:NotAuthorized", {}, "\n  HTTP/1.1\n  401\n"}.document()),
              (Codes{7, 0, 0}));
    // A page with a document type, attributes and entities that no XML parser knows.
    EXPECT_EQ(codesOf("<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\""
                      " \"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">\n"
                      "<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\"><head profile=\"x\">"
                      "<title id=\"t\">404&nbsp;-&nbsp;Not Found</title></head><body>a &nbsp; b</body></html>"),
              (Codes{8, 0, 0}));
}

TEST(FaultClassification, ofAnEnvelopeComesFirst)
{
    // Only one of the three can be the document element, so the order shows in what counts below an Envelope.
    EXPECT_EQ(
        codesOf("<Envelope><html><head><title>404</title></head></html><Body><Fault><Code><Value>s:Receiver</Value>"
                "</Code></Fault></Body></Envelope>"),
        (Codes{5, 0, 0}));
}

} // namespace
