#include "engine/ConfigurationSwitch.h"

#include "PhaseFixture.h"

#include "platform/ado/Error.h"

namespace phasetest {
namespace {

using ado::DataTypeEnum;

class StoreDescriptionTest : public PhaseTest {
protected:
    void SetUp() override {
        PhaseTest::SetUp();
        openDest();
    }
    void description(const vb::Variant& value) {
        server->script().returns(
            u"select DESCRIZIONE from QZSYSTEM"_s,
            ado::recording::rows({{u"DESCRIZIONE"_s, DataTypeEnum::adVarWChar}}, {{value}}));
    }
    QStringList updates() const { return statements().filter(u"update"_s); }

};

TEST_F(StoreDescriptionTest, AnEmptyDescriptionTakesTheOperatorsText) {
    description(u""_s);
    EXPECT_MEMBER_OK(engine::StoreDescription(run->dest, u"Archivio 2024"_s));
    EXPECT_EQ(updates(), QStringList{u"update QZSYSTEM set DESCRIZIONE='Archivio 2024'"_s});
}

TEST_F(StoreDescriptionTest, ANullDescriptionTakesTheOperatorsText) {
    description(vb::Variant(vb::Null{}));
    EXPECT_MEMBER_OK(engine::StoreDescription(run->dest, u"Nuovo"_s));
    EXPECT_EQ(updates(), QStringList{u"update QZSYSTEM set DESCRIZIONE='Nuovo'"_s});
}

TEST_F(StoreDescriptionTest, ADescriptionCopiedFromTheSourceStays) {
    description(u"Comune di Valdorsa"_s);
    // An apostrophe does no harm when no update is needed.
    EXPECT_MEMBER_OK(engine::StoreDescription(run->dest, u"Archivio dell'anno"_s));
    EXPECT_TRUE(updates().isEmpty());
}

TEST_F(StoreDescriptionTest, AnApostropheIsNotDoubledAndTheRefusalIsTheAnswer) {
    description(u""_s);
    server->script().fails(u"update QZSYSTEM set DESCRIZIONE='Archivio dell'anno'"_s,
                           ado::Error(ado::HResult::DB_E_ERRORSINCOMMAND,
                                      u"Incorrect syntax near 'anno'."_s, u"SQL Server"_s));
    EXPECT_FALSE(engine::StoreDescription(run->dest, u"Archivio dell'anno"_s));
    EXPECT_TRUE(nxApp::LastError().Description().startsWith(u"Incorrect syntax near 'anno'."_s))
        << nxApp::LastError().Description().toStdString();
    EXPECT_TRUE(box->shown().empty()); // silent: the run tells the end
}

TEST_F(StoreDescriptionTest, ADatabaseWithoutItsSystemTableIsRefused) {
    server->script().fails(u"select DESCRIZIONE from QZSYSTEM"_s,
                           ado::Error(ado::HResult::DB_E_BADTABLEID,
                                      u"Invalid object name 'QZSYSTEM'."_s, u"SQL Server"_s));
    EXPECT_FALSE(engine::StoreDescription(run->dest, u"X"_s));
    EXPECT_EQ(nxApp::LastError().Description(), u"Invalid object name 'QZSYSTEM'."_s);
    EXPECT_TRUE(updates().isEmpty());
}

} // namespace
} // namespace phasetest
