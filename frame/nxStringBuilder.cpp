#include "frame/nxStringBuilder.h"

#include "frame/Edge.h"
#include "frame/nxApp.h"

#include "platform/vb/Err.h"
#include "platform/win/Cp1252.h"

using namespace Qt::StringLiterals;

namespace {
constexpr std::int32_t kInitialCapacity = 4096;
constexpr std::int32_t kMaxCapacity = 1 << 30;
} // namespace

nxStringBuilder::nxStringBuilder() : m_enabled(nxApp::IsInit()) {
    Reset();
}

bool nxStringBuilder::Append(const QString& text) noexcept {
    if (!m_enabled) {
        return false;
    }
    return Edge(u"nxStringBuilder.Append()", true, false, [&] {
        const QByteArray bytes = win::toCp1252(text);
        const qint64 needed = qint64(m_length) + bytes.size();
        if (needed > m_capacity) {
            if (needed > qint64(m_capacity) * 2 || m_capacity > kMaxCapacity / 2) {
                vb::Raise(vb::errors::kSubscriptOutOfRange, u"nxStringBuilder"_s, {});
            }
            m_buffer.resize(qsizetype(m_capacity) * 2, '\0');
            m_capacity *= 2;
        }
        std::copy(bytes.cbegin(), bytes.cend(), m_buffer.begin() + m_length);
        m_length += static_cast<std::int32_t>(bytes.size());
        return true;
    });
}

void nxStringBuilder::AppendLine(const QString& text) noexcept {
    IgnoreErrors([&] { Append(text + u"\r\n"_s); });
}

void nxStringBuilder::Reset() noexcept {
    m_capacity = kInitialCapacity;
    m_length = 0;
    IgnoreErrors([&] { m_buffer = QByteArray(kInitialCapacity, '\0'); });
}

QString nxStringBuilder::ToString() const noexcept {
    if (!m_enabled) {
        return {};
    }
    return IgnoreErrors(QString(), [&] {
        const qsizetype nul = m_buffer.indexOf('\0');
        return win::fromCp1252(QByteArrayView(m_buffer).first(nul < 0 ? m_buffer.size() : nul));
    });
}
