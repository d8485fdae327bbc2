#pragma once

#include "jobs/JobControls.h"

#include "tests/frame/FrameFixture.h"

#include <QStringList>

#include <cstdint>
#include <vector>

// A clock the test moves by hand, so that no test sleeps.
struct ManualClock {
    std::int32_t now = 0;
    auto fn() {
        return [this] { return now; };
    }
};

// A label that remembers every caption; on a form it measures 10 pixels a character.
class RecordingLabel : public JobLabel {
public:
    explicit RecordingLabel(bool onForm = false, int width = 0)
        : m_onForm(onForm), m_width(width) {}
    void SetCaption(const QString& text) override { captions.append(text); }
    void Refresh() override { ++refreshes; }
    bool OnForm() const override { return m_onForm; }
    int Width() const override { return m_width; }
    int TextWidth(const QString& text) const override { return static_cast<int>(text.size()) * 10; }

    QString caption() const { return captions.isEmpty() ? QString() : captions.back(); }
    QStringList captions;
    int refreshes = 0;

private:
    bool m_onForm;
    int m_width;
};

class RecordingBar : public JobProgress {
public:
    void SetMax(int steps) override { max = steps; }
    void SetValue(int value) override { values.push_back(value); }
    void Refresh() override { ++refreshes; }
    int value() const { return values.empty() ? -1 : values.back(); }
    int max = 0;
    std::vector<int> values;
    int refreshes = 0;
};
