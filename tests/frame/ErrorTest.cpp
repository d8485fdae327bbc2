#include "platform/ado/Error.h"

#include "frame/Edge.h"

#include "tests/frame/FrameFixture.h"

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

class ErrorTest : public FrameTest {};

TEST_F(ErrorTest, ANewRecordIsAnUnknownError) {
    nxError e;
    EXPECT_EQ(e.Number(), 0);
    EXPECT_EQ(e.Description(), u"Errore sconosciuto"_s);
    e.Fill(5, u"s"_s, u"d"_s, u"h"_s, 7, false);
    e.Clear();
    EXPECT_EQ(e.Description(), u"Errore sconosciuto"_s);
    EXPECT_EQ(e.Source(), QString());
    EXPECT_EQ(e.HelpContext(), 0);
}

TEST_F(ErrorTest, FillFromTheAmbientErrorKeepsTheCallersLabel) {
    vb::Err().Number = 3021;
    vb::Err().Source = u"ADODB.Recordset"_s;
    vb::Err().Description = u"BOF o EOF è True"_s;
    vb::Err().HelpContext = 1240;
    nxError e;
    e.Fill(0, u"x"_s, QString(), QString(), 0, true);
    EXPECT_EQ(e.Number(), 3021);
    EXPECT_EQ(e.Source(), u"x"_s);
    EXPECT_EQ(e.Description(), u"BOF o EOF è True"_s);
    EXPECT_EQ(e.HelpContext(), 1240);

    e.Fill(0, u"x"_s, QString(), QString(), 0, false);
    EXPECT_EQ(e.Number(), 0);
    EXPECT_EQ(e.Description(), QString()); // not "Errore sconosciuto"
    EXPECT_EQ(e.HelpContext(), 0);
}

TEST_F(ErrorTest, ReplaceAndClearWriteTheAmbientError) {
    nxError e;
    e.Fill(13, u"nxRs.FldSet"_s, u"Tipo non corrispondente"_s, QString(), 0, false);
    vb::Err().HelpFile = u"old.hlp"_s;
    e.Replace();
    EXPECT_EQ(vb::Err().Number, 13);
    EXPECT_EQ(vb::Err().Source, u"nxRs.FldSet"_s);
    EXPECT_EQ(vb::Err().HelpFile, QString());
    e.Clear(true);
    EXPECT_EQ(vb::Err().Number, 0);
    EXPECT_EQ(vb::Err().Description, u"Errore sconosciuto"_s);
}

TEST_F(ErrorTest, EdgeTurnsARaisedErrorIntoTheFailureValue) {
    box->answer(1);
    const int result = Edge(u"nxDb.DbOpen()", false, -1, [] {
        vb::Raise(vb::errors::kFileNotFound, u"nxLib"_s, {});
        return 1;
    });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(nxApp::LastError().Number(), 53);
    EXPECT_EQ(nxApp::LastError().Source(), u"nxDb.DbOpen()"_s);
    EXPECT_EQ(box->last().text,
              u"Impossibile trovare il file\r\n\r\nnxDb.DbOpen() (errore 53, 0x35)"_s);
    EXPECT_EQ(box->last().flags, 16);
}

TEST_F(ErrorTest, EdgePassesResultsThroughAndStaysQuietWhenSilent) {
    EXPECT_EQ(Edge(u"a()", false, QString(), [] { return u"ok"_s; }), u"ok"_s);
    EXPECT_FALSE(Edge(u"b()", true, false, []() -> bool { throw std::out_of_range("indice"); }));
    EXPECT_TRUE(box->shown().empty());
    EXPECT_EQ(nxApp::LastError().Number(), 51);
    EXPECT_EQ(nxApp::LastError().Description(), u"indice"_s);
    EXPECT_EQ(nxApp::LastError().Source(), u"b()"_s);
}

TEST_F(ErrorTest, EdgeNamesMemoryAndUnknownFailures) {
    Edge(u"c()", true, [] { throw std::bad_alloc(); });
    EXPECT_EQ(nxApp::LastError().Number(), 7);
    EXPECT_EQ(nxApp::LastError().Description(), u"Memoria esaurita"_s);
    Edge(u"d()", true, [] { throw 42; });
    EXPECT_EQ(nxApp::LastError().Number(), 51);
    EXPECT_EQ(nxApp::LastError().Description(), u"Errore interno"_s);
    EXPECT_EQ(vb::Err().Number, 51); // the ambient error holds it too
}

TEST_F(ErrorTest, EdgeKeepsTheProvidersHresult) {
    box->answer(1);
    Edge(u"nxConn.TdExist()"_s, false, [] {
        throw ado::Error(ado::HResult::DB_E_BADTABLEID, u"Tabella inesistente"_s,
                         u"Microsoft OLE DB Provider for SQL Server"_s);
    });
    EXPECT_EQ(nxApp::LastError().Number(), -2147217865);
    EXPECT_EQ(vb::Err().Source, u"Microsoft OLE DB Provider for SQL Server"_s);
    EXPECT_EQ(box->last().text,
              u"Tabella inesistente\r\n\r\nnxConn.TdExist() (errore -2147217865, 0x80040E37)"_s);
    EXPECT_EQ(box->last().flags, 48);
}

TEST_F(ErrorTest, LoadAmbientErrorFillsTheAmbientErrorOnlyAndCanBeAdjusted) {
    nxApp::LastError().Fill(5, u"prima"_s, u"precedente"_s, QString(), 0, false);
    try {
        throw ado::Error(ado::HResult::DB_E_BADTABLEID, u"Tabella inesistente"_s,
                         u"Microsoft OLE DB Provider for SQL Server"_s);
    } catch (...) {
        frame::LoadAmbientError();
    }
    EXPECT_EQ(vb::Err().Number, -2147217865);
    EXPECT_EQ(vb::Err().Description, u"Tabella inesistente"_s);
    // Nothing is recorded or shown until the member hands the adjusted error on.
    EXPECT_EQ(nxApp::LastError().Number(), 5);
    EXPECT_TRUE(box->shown().empty());
    vb::Err().Description = u"nxRs.RsOpen: tabella inesistente"_s;
    nxApp::ErrorBox(u"nxRs.RsOpen()"_s, true, false);
    EXPECT_EQ(nxApp::LastError().Number(), -2147217865);
    EXPECT_EQ(nxApp::LastError().Description(), u"nxRs.RsOpen: tabella inesistente"_s);

    try {
        throw std::runtime_error("");
    } catch (...) {
        frame::LoadAmbientError();
    }
    EXPECT_EQ(vb::Err().Number, 51);
    EXPECT_EQ(vb::Err().Description, u"Errore interno"_s);
}

TEST_F(ErrorTest, CurrentErrorRecordReadsTheFailureAndTouchesNothing) {
    vb::Err().Number = 3021;
    vb::ErrRecord record;
    try {
        vb::Raise(vb::errors::kFileNotFound, u"nxLib"_s, {});
    } catch (...) {
        record = frame::currentErrorRecord();
    }
    EXPECT_EQ(record.Number, 53);
    EXPECT_EQ(record.Description, u"Impossibile trovare il file"_s);
    // Raise itself filled the ambient error; reading the record afterwards changes nothing.
    vb::Err().Number = 3021;
    try {
        throw std::bad_alloc();
    } catch (...) {
        record = frame::currentErrorRecord();
    }
    EXPECT_EQ(record.Number, 7);
    EXPECT_EQ(vb::Err().Number, 3021);
    EXPECT_EQ(nxApp::LastError().Number(), 0);
}

} // namespace
