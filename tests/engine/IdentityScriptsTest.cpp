#include "engine/IdentityScripts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace engine;

TEST(IdentityScripts, CatalogViewByServerVersion) {
    const QStringList v9 = IdentityScripts(9);
    ASSERT_EQ(v9.size(), 6);
    EXPECT_EQ(v9[0],
              u"if (exists (select * from sys.objects where object_id = OBJECT_ID(N'SYS_IDS') and type in ( N'U' )))\r\n    drop table SYS_IDS"_s);
    EXPECT_EQ(v9[2],
              u"if (exists (select * from sys.objects where object_id = OBJECT_ID(N'GetIdentity') and type in ( N'P', N'PC' )))\r\n    drop procedure GetIdentity"_s);
    const QStringList v8 = IdentityScripts(8);
    EXPECT_EQ(v8[4],
              u"if (exists (select * from sysobjects where id = OBJECT_ID(N'GetMaxIdentity') and type in ( N'P', N'PC' )))\r\n    drop procedure GetMaxIdentity"_s);
    // Only the three drop guards depend on the version.
    for (int i : {1, 3, 5}) {
        EXPECT_EQ(v8[i], v9[i]) << i;
        EXPECT_EQ(IdentityScripts(15)[i], v9[i]) << i;
    }
    EXPECT_EQ(IdentityScripts(15)[0], v9[0]);
}

TEST(IdentityScripts, TableAndProcedures) {
    const QStringList s = IdentityScripts(10);
    EXPECT_EQ(s[1],
              u"create table SYS_IDS (TABELLA varchar(255) default '' not null, RECNUM int default 0 not null, constraint PK_SYS_RECS primary key clustered (TABELLA, RECNUM))"_s);
    const QStringList getIdentity = s[3].split(u"\r\n"_s);
    ASSERT_EQ(getIdentity.size(), 18);
    EXPECT_EQ(getIdentity[0], u"create procedure dbo.GetIdentity"_s);
    EXPECT_EQ(getIdentity[13], u"           exec @max = GetMaxIdentity @TableName"_s);
    EXPECT_EQ(getIdentity[17], u"   return @@ERROR"_s);
    const QStringList getMax = s[5].split(u"\r\n"_s);
    ASSERT_EQ(getMax.size(), 10);
    EXPECT_EQ(getMax[5],
              u"   exec('create procedure #GetMaxIdentity(@M int = 0 OUTPUT) as set nocount on select @M=max(SYS_RECORD) from ' + @TableName + ' set @M = isnull(@M,0) return @M')"_s);
    EXPECT_EQ(getMax[9], u"   return @M"_s);
    // Line ends are CR LF only: no bare LF anywhere.
    for (const QString& script : s) {
        EXPECT_EQ(script.count(u'\n'), script.count(u"\r\n"_s));
    }
}
