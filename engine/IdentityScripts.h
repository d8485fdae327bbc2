#pragma once

#include <QStringList>

// The counter table SYS_IDS and the procedures GetIdentity and GetMaxIdentity, which hand out
// SYS_RECORD numbers on the server as Jet's autoincrement did. Each is dropped first, so an
// empty database used again gets them fresh.
namespace engine {

// The six scripts in the order they run, lines ended by CR LF. From major version 9 the
// catalog view is sys.objects (key object_id), before it sysobjects (key id).
QStringList IdentityScripts(long dbmsMajorVersion);

} // namespace engine
