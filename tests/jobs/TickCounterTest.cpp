#include "jobs/nxTickCounter.h"

#include "frame/nxLog.h"
#include "frame/nxSys.h"

#include "platform/vb/Err.h"

#include "tests/jobs/JobFixture.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

using TickCounterTest = FrameTest;

struct TickText {
    std::int32_t ticks;
    bool exact;
    const char16_t* text;
};

TEST_F(TickCounterTest, FormatTickClimbsTheLadderOfUnits) {
    const nxTickCounter t;
    const TickText cases[] = {
        {0, false, u"0 secondi"},
        {500, true, u"500 millisecondi"},
        {1, true, u"1 millisecondo"},
        {1000, false, u"1 secondo"},
        {1000, true, u"1 secondo"},
        // The tenths count for the ending even where they are not shown.
        {1500, false, u"1 secondi"},
        {1500, true, u"1,5 secondi"},
        {1999, true, u"1,9 secondi"},
        {59000, false, u"59 secondi"},
        {60000, false, u"1 minuto"},
        {61000, false, u"1:01 minuti"},
        {90000, false, u"1:30 minuti"},
        {3600000, false, u"1 ora"},
        {5400000, false, u"1:30 ore"},
        {7200000, false, u"2 ore"},
        // Days keep the feminine ending of the hours, and stop the ladder at the fourth step.
        {86400000, false, u"1 giorna"},
        {129600000, false, u"1,5 giorne"},
        {std::numeric_limits<std::int32_t>::max(), false, u"24,8 giorne"},
        // A negative span is below the divisor after one step.
        {-500, false, u"-1 secondi"},
        {-5000, false, u"-5 secondi"},
    };
    for (const TickText& c : cases) {
        EXPECT_EQ(t.FormatTick(c.ticks, c.exact), QString::fromUtf16(c.text))
            << c.ticks << (c.exact ? " exact" : "");
    }
}

TEST_F(TickCounterTest, ThousandsAreGroupedTheItalianWay) {
    EXPECT_EQ(FormatThousands(0), u"0"_s);
    EXPECT_EQ(FormatThousands(999), u"999"_s);
    EXPECT_EQ(FormatThousands(1000), u"1.000"_s);
    EXPECT_EQ(FormatThousands(1234567), u"1.234.567"_s);
    EXPECT_EQ(FormatThousands(-1234), u"-1.234"_s);
    EXPECT_EQ(FormatThousands(2.5), u"2"_s); // half to even
    EXPECT_EQ(FormatThousands(3.5), u"4"_s);
}

TEST_F(TickCounterTest, CheckMeasuresFromInitAndAWrappedTickOverflows) {
    ManualClock clock;
    clock.now = 1000;
    nxTickCounter t(clock.fn());
    clock.now = 1250;
    EXPECT_EQ(t.Check(), 250);
    clock.now = 4000;
    EXPECT_EQ(t.Check(), 3000);
    t.Init();
    EXPECT_EQ(t.Check(), 0);

    clock.now = std::numeric_limits<std::int32_t>::max() - 10;
    t.Init();
    clock.now = std::numeric_limits<std::int32_t>::min() + 10; // the tick wrapped
    try {
        t.Check();
        FAIL() << "a wrapped tick must overflow";
    } catch (const vb::RuntimeError& e) {
        EXPECT_EQ(e.record().Number, vb::errors::kOverflow);
    }
}

TEST_F(TickCounterTest, NothingBeforeTheLibraryStarts) {
    nxApp::ResetForTesting();
    ManualClock clock;
    clock.now = 777;
    nxTickCounter t(clock.fn());
    EXPECT_EQ(t.Current(), 0);
    EXPECT_EQ(t.FormatTick(1000, false), QString());
    clock.now = 5000;
    EXPECT_EQ(t.Check(u"x"_s), 0);
}

TEST_F(TickCounterTest, TimingLinesGoToTickCounterLogInTheProgramFolder) {
    nxApp::Sys().AppPath(dir.path());
    const QString file = nxApp::Sys().AppPath() + u"TickCounter.log"_s;
    ManualClock clock;
    nxTickCounter t(clock.fn());
    t.Init(u"Copia"_s, true);
    ASSERT_TRUE(nxApp::TickLog().IsOpen());
    EXPECT_EQ(nxApp::TickLog().LogFile(), file);
    clock.now = 2500;
    t.Check(u"nxJob.OnJob()"_s);
    clock.now = 64500;
    t.Check();

    // Without title and label nothing is written, though the log is open.
    nxTickCounter quiet(clock.fn());
    clock.now = 70000;
    quiet.Check();
    // A second Init with the log leaves the open file in use and writes no second title.
    nxTickCounter second(clock.fn());
    second.Init(QString(), true);
    nxApp::TickLog().LogClose();

    const QList<QByteArray> lines = readAll(file).split('\n');
    ASSERT_EQ(lines.size(), 8) << readAll(file).toStdString();
    EXPECT_TRUE(lines[1].endsWith(" - TickCounter\r"));
    EXPECT_TRUE(lines[3].endsWith(" - " + QByteArray(8, ' ') + "(Init)" + QByteArray(30, ' ') +
                                  " Copia\r"));
    EXPECT_TRUE(lines[4].endsWith(" - 2,5 secondi (2,5 secondi totali)" + QByteArray(12, ' ') +
                                  " 00|Copia|nxJob.OnJob()\r"))
        << lines[4].toStdString();
    EXPECT_TRUE(lines[5].endsWith(" - 1:02 minuti (1:04 minuti totali)" + QByteArray(12, ' ') +
                                  " 01|Copia\r"))
        << lines[5].toStdString();
    EXPECT_EQ(lines[6], "\r");
}

} // namespace
