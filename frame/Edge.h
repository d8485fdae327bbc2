#pragma once

#include "platform/vb/Err.h"

#include <QStringView>

#include <utility>

namespace frame {

// Inside a catch block: leaves the exception in flight in the ambient error (vb::Err()), as the
// run time would have, so that a member can adjust it before it reaches nxApp::ErrorBox. The
// numbers are those of trapCurrentException below.
void LoadAmbientError();

// Inside a catch block: the exception in flight read as an error record, with the numbers of
// trapCurrentException, leaving the ambient error and nxApp::LastError() as they are.
vb::ErrRecord currentErrorRecord() noexcept;

// Inside a catch block: reads the exception in flight into the ambient error (vb::Err()), as the
// run time would have left it, and hands it to nxApp::ErrorBox(label, silent, false), which
// records it in nxApp::LastError() and shows it unless `silent`.
//   vb::RuntimeError   its own record
//   ado::Error         Number the HRESULT as a signed 32-bit number, the provider's source and text
//   std::bad_alloc     7, "Memoria esaurita"
//   anything else      51, "Errore interno" (a C++ exception's own text, when it has one)
void trapCurrentException(QStringView label, bool silent);

} // namespace frame

// The one place where exceptions turn into results: runs `body`; when it throws, the failure is
// trapped under `label` (frame::trapCurrentException) and the member answers `failed`.
//   return Edge(u"nxSys.DirMake()", Silent, false, [&] { ...; return true; });
template <class R, class Body>
R Edge(QStringView label, bool silent, R failed, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        frame::trapCurrentException(label, silent);
    }
    return failed;
}

// The same for a member that answers nothing.
template <class Body> void Edge(QStringView label, bool silent, Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        frame::trapCurrentException(label, silent);
    }
}

// For members that go on past errors and report nothing: a failure answers `failed` and leaves
// nxApp::LastError() alone.
template <class R, class Body> R IgnoreErrors(R failed, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return failed;
    }
}

template <class Body> void IgnoreErrors(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
    }
}
