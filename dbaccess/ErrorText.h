#pragma once

#include "frame/nxApp.h"

#include "platform/ado/Error.h"
#include "platform/vb/Err.h"
#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>
#include <utility>

namespace dbaccess {

// Runs `body`; a run-time or provider failure leaves it as a run-time error whose description
// ends in " (<text>)", so the box names the statement or the database that failed.
template <class Body> auto completingErr(const QString& text, Body&& body) {
    try {
        return std::forward<Body>(body)();
    } catch (const ado::Error& e) {
        vb::Err() = vb::ErrRecord{e.hresult(), e.source(), e.description(), {}, 0};
    } catch (const vb::RuntimeError& e) {
        vb::Err() = e.record();
    }
    nxApp::CompleteErr(text);
    throw vb::RuntimeError(vb::Err());
}

// The number a failure carries: the HRESULT of a provider error, the run-time number otherwise.
inline std::int32_t failureNumber(const std::exception& e) {
    if (const auto* a = dynamic_cast<const ado::Error*>(&e)) {
        return a->hresult();
    }
    if (const auto* r = dynamic_cast<const vb::RuntimeError*>(&e)) {
        return r->record().Number;
    }
    return 0;
}

// CLng of a value read from a rowset: Null and text that is no number fail as VB fails.
inline std::int32_t longOf(const vb::Variant& value) {
    if (value.isNull()) {
        vb::Raise(vb::errors::kInvalidUseOfNull, {}, vb::ErrorText(vb::errors::kInvalidUseOfNull));
    }
    const auto n = value.toLong();
    if (!n) {
        vb::Raise(vb::errors::kTypeMismatch, {}, vb::ErrorText(vb::errors::kTypeMismatch));
    }
    return *n;
}

// CBool of a value read from a rowset.
inline bool boolOf(const vb::Variant& value) {
    if (value.isNull()) {
        vb::Raise(vb::errors::kInvalidUseOfNull, {}, vb::ErrorText(vb::errors::kInvalidUseOfNull));
    }
    const auto b = value.toBool();
    if (!b) {
        vb::Raise(vb::errors::kTypeMismatch, {}, vb::ErrorText(vb::errors::kTypeMismatch));
    }
    return *b;
}

} // namespace dbaccess
