#include "tests/dbaccess/DbFixture.h"

#include "tests/support/Golden.h"

namespace dbtest {

void expectGolden(const QString& name, const QStringList& lines) {
    expectGoldenText(u"tests/dbaccess/golden/"_s + name + u".sql"_s, lines.join(u'\n') + u'\n');
}

} // namespace dbtest
