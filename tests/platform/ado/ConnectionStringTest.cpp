#include "platform/ado/Connection.h"
#include "platform/ado/ConnectionString.h"
#include "platform/ado/Error.h"
#include "platform/ado/ProviderRegistry.h"
#include "platform/ado/recording/RecordingProvider.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using ado::ConnectionString;
using ado::HResult;

namespace {

HResult codeOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const ado::Error& e) {
        return static_cast<HResult>(static_cast<std::uint32_t>(e.hresult()));
    }
    return static_cast<HResult>(0);
}

} // namespace

TEST(ConnectionString, KeywordsMatchWithoutRegardToCaseAndBlanksAreDropped) {
    const auto cs = ConnectionString::parse(
        u"Provider=Microsoft.Jet.OLEDB.4.0 ;  Data Source = C:\\Arc\\db.mdb;jet oledb:database password=x"_s);
    EXPECT_EQ(cs.value(u"PROVIDER"), u"Microsoft.Jet.OLEDB.4.0"_s);
    EXPECT_EQ(cs.value(u"data source"), u"C:\\Arc\\db.mdb"_s);
    EXPECT_EQ(cs.value(u"Jet OLEDB:Database Password"), u"x"_s);
    EXPECT_FALSE(cs.contains(u"User ID"));
    EXPECT_EQ(cs.value(u"User ID"), QString());
    EXPECT_EQ(cs.items().size(), 3U);
}

TEST(ConnectionString, QuotedValuesKeepSemicolonsEqualsAndDoubledQuotes) {
    const auto cs = ConnectionString::parse(
        u"Password='a;b=c''d'; User ID=\"sa\"\"x\" ;Data Source=  'srv' "_s);
    EXPECT_EQ(cs.value(u"Password"), u"a;b=c'd"_s);
    EXPECT_EQ(cs.value(u"User ID"), u"sa\"x"_s);
    EXPECT_EQ(cs.value(u"Data Source"), u"srv"_s);
}

TEST(ConnectionString, DoubledEqualsInAKeywordAndRepeatedKeywords) {
    const auto cs = ConnectionString::parse(u"a==b=1;;X=first;x=second;"_s);
    EXPECT_EQ(cs.value(u"a=b"), u"1"_s);
    EXPECT_EQ(cs.value(u"X"), u"second"_s); // the later value counts
    EXPECT_EQ(cs.items().size(), 2U);
}

TEST(ConnectionString, MalformedStringsAreRefusedWithTheServiceComponentsError) {
    for (const QString& text : {u"Provider"_s, u"Password='open;Data Source=x"_s,
                                u"Password='a'b;"_s}) {
        try {
            (void)ConnectionString::parse(text);
            ADD_FAILURE() << "accepted: " << text.toStdString();
        } catch (const ado::Error& e) {
            EXPECT_TRUE(e.is(HResult::DB_E_BADINITSTRING)) << text.toStdString();
            EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x80040E73));
            EXPECT_EQ(e.source(), u"Microsoft OLE DB Service Components"_s);
            EXPECT_EQ(e.description(),
                      u"Format of the initialization string does not conform to the OLE DB specification."_s);
        }
    }
}

TEST(ConnectionString, WritingItBackQuotesWhatNeedsItAndReadsTheSame) {
    ConnectionString cs;
    cs.set(u"Provider"_s, u"SQLOLEDB"_s);
    cs.set(u"Password"_s, u"p;w'd"_s);
    cs.set(u"Name"_s, u"say \"hi\""_s);
    cs.set(u"PROVIDER"_s, u"SQLOLEDB.1"_s); // replaces in place
    EXPECT_EQ(cs.toString(), u"Provider=SQLOLEDB.1;Password=\"p;w'd\";Name='say \"hi\"'"_s);
    const auto again = ConnectionString::parse(cs.toString());
    EXPECT_EQ(again.items(), cs.items());
    cs.remove(u"password");
    EXPECT_EQ(cs.toString(), u"Provider=SQLOLEDB.1;Name='say \"hi\"'"_s);
}

TEST(ProviderRegistry, ScopedProviderStandsInAndIsRemovedAfterwards) {
    auto& registry = ado::ProviderRegistry::instance();
    EXPECT_EQ(registry.find(u"Test.Only.Provider"), nullptr);
    {
        auto recording = std::make_shared<ado::recording::RecordingProvider>(u"Test.Only.Provider"_s);
        const ado::ScopedProvider scope(u"Test.Only.Provider"_s, recording);
        EXPECT_EQ(registry.find(u"test.only.PROVIDER"), recording);
        EXPECT_EQ(registry.find(u"  Test.Only.Provider "), recording);
    }
    EXPECT_EQ(registry.find(u"Test.Only.Provider"), nullptr);
    EXPECT_EQ(codeOf([&] { (void)registry.get(u"Test.Only.Provider"); }),
              HResult::adErrProviderNotFound);
}

TEST(ProviderRegistry, NestedScopesRestoreThePreviousProvider) {
    auto outer = std::make_shared<ado::recording::RecordingProvider>(u"Nest"_s);
    auto inner = std::make_shared<ado::recording::RecordingProvider>(u"Nest"_s);
    const ado::ScopedProvider a(u"Nest"_s, outer);
    {
        const ado::ScopedProvider b(u"NEST"_s, inner);
        EXPECT_EQ(ado::ProviderRegistry::instance().find(u"nest"), inner);
    }
    EXPECT_EQ(ado::ProviderRegistry::instance().find(u"nest"), outer);
}

TEST(ConnectionOpen, TheProviderKeywordChoosesTheProviderAndUnknownNamesFail) {
    auto recording = std::make_shared<ado::recording::RecordingProvider>(u"Alpha.1"_s);
    const ado::ScopedProvider scope(u"Alpha.1"_s, recording);
    auto cn = ado::Connection::create();
    EXPECT_EQ(cn->Provider(), u"MSDASQL"_s); // ADO's default when nothing names one
    cn->setConnectionString(u"provider=alpha.1;Data Source=here"_s);
    EXPECT_EQ(cn->Provider(), u"alpha.1"_s);
    cn->Open();
    EXPECT_EQ(cn->State(), ado::adStateOpen);
    EXPECT_EQ(cn->Provider(), u"Alpha.1"_s);
    EXPECT_EQ(recording->journal().lines(), QStringList{u"open: provider=alpha.1;Data Source=here"_s});
    EXPECT_EQ(codeOf([&] { cn->Open(); }), HResult::adErrObjectOpen);
    EXPECT_EQ(codeOf([&] { cn->setConnectionString(u"x=y"_s); }), HResult::adErrObjectOpen);
    cn->Close();
    EXPECT_EQ(cn->State(), ado::adStateClosed);
    EXPECT_EQ(codeOf([&] { cn->Close(); }), HResult::adErrObjectClosed);
    EXPECT_EQ(codeOf([&] { (void)cn->Execute(u"select 1"_s); }), HResult::adErrInvalidConnection);

    auto other = ado::Connection::create();
    try {
        other->Open(u"Provider=Nobody.Here;Data Source=x"_s);
        ADD_FAILURE() << "opened with an unknown provider";
    } catch (const ado::Error& e) {
        EXPECT_EQ(e.hresult(), static_cast<std::int32_t>(0x800A0E7A));
        EXPECT_EQ(e.description(), u"Provider cannot be found. It may not be properly installed."_s);
    }
    EXPECT_EQ(other->State(), ado::adStateClosed);
    EXPECT_EQ(codeOf([&] { other->Open(u"Provider=Alpha.1;Password='unclosed"_s); }),
              HResult::DB_E_BADINITSTRING);
}
