#include "engine/IdentityScripts.h"

using namespace Qt::StringLiterals;

namespace engine {

namespace {

QString dropIfExists(const QString& objects, const QString& key, const QString& name,
                     const QString& types, const QString& drop) {
    return u"if (exists (select * from "_s + objects + u" where "_s + key + u" = OBJECT_ID(N'"_s +
           name + u"') and type in ( "_s + types + u" )))\r\n    "_s + drop + u' ' + name;
}

QString lines(const QStringList& list) { return list.join(u"\r\n"_s); }

} // namespace

QStringList IdentityScripts(long dbmsMajorVersion) {
    const QString objects = dbmsMajorVersion >= 9 ? u"sys.objects"_s : u"sysobjects"_s;
    const QString key = dbmsMajorVersion >= 9 ? u"object_id"_s : u"id"_s;
    const QString procedures = u"N'P', N'PC'"_s;
    return {
        dropIfExists(objects, key, u"SYS_IDS"_s, u"N'U'"_s, u"drop table"_s),
        u"create table SYS_IDS (TABELLA varchar(255) default '' not null, RECNUM int default 0 not null, constraint PK_SYS_RECS primary key clustered (TABELLA, RECNUM))"_s,
        dropIfExists(objects, key, u"GetIdentity"_s, procedures, u"drop procedure"_s),
        lines({
            u"create procedure dbo.GetIdentity"_s,
            u"   @TableName varchar(255)"_s,
            u"as"_s,
            u"   set nocount on"_s,
            u"   declare @Identity int"_s,
            u"   declare @max int"_s,
            u"   if exists(select RECNUM from SYS_IDS where TABELLA = @TableName)"_s,
            u"       begin"_s,
            u"           update SYS_IDS set RECNUM = RECNUM + 1 where TABELLA = @TableName"_s,
            u"           select RECNUM from SYS_IDS where TABELLA = @TableName"_s,
            u"       end"_s,
            u"   else"_s,
            u"       begin"_s,
            u"           exec @max = GetMaxIdentity @TableName"_s,
            u"           insert SYS_IDS (TABELLA, RECNUM) values (@TableName, @max + 1)"_s,
            u"           select RECNUM from SYS_IDS where TABELLA = @TableName"_s,
            u"       end"_s,
            u"   return @@ERROR"_s,
        }),
        dropIfExists(objects, key, u"GetMaxIdentity"_s, procedures, u"drop procedure"_s),
        lines({
            u"create procedure dbo.GetMaxIdentity"_s,
            u"   @TableName varchar(255)"_s,
            u"as"_s,
            u"   set nocount on"_s,
            u"   declare @M int"_s,
            u"   exec('create procedure #GetMaxIdentity(@M int = 0 OUTPUT) as set nocount on select @M=max(SYS_RECORD) from ' + @TableName + ' set @M = isnull(@M,0) return @M')"_s,
            u"   exec @M = #GetMaxIdentity"_s,
            u"   exec('drop procedure #GetMaxIdentity')"_s,
            u"   set @M = isnull(@M,0)"_s,
            u"   return @M"_s,
        }),
    };
}

} // namespace engine
