#include "tests/console/WindowFixture.h"

using namespace Qt::StringLiterals;

namespace {

// The picture of the idle window in the README (the finished run's is taken at the end of a
// whole conversion, WholeConversionTest.cpp).
class ScreenshotTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        window->resize(640, 720);
        window->Form_Load();
        window->show();
    }
    void save(const QString& name) { saveScreen(*window, name); }
};

TEST_F(ScreenshotTest, TheIdleWindow) {
    save(u"idle.png"_s);
}

} // namespace
