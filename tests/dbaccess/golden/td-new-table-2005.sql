create table ORDINE ([IDRec] int not null identity(1, 1), [SYS_RECORD] int not null, [NOME] nvarchar(50) not null, [CODICE] nvarchar(10), [QTA] int, [FLAG] bit, [DATA] datetime, [NOTE] nvarchar(max), [GUID] uniqueidentifier not null)
update ORDINE set [NOME]='' where [NOME] is null
update ORDINE set [CODICE]='abc' where [CODICE] is null
update ORDINE set [QTA]=0 where [QTA] is null
update ORDINE set [FLAG]=0 where [FLAG] is null
update ORDINE set [DATA]=convert(varchar(8), getdate(), 112) where [DATA] is null
if exists(select * from sysindexes where name = 'CUR_ORDINEPrimaryKey') alter table ORDINE drop constraint CUR_ORDINEPrimaryKey
alter table ORDINE alter column [NOME] nvarchar(50) not null
alter table ORDINE alter column [IDRec] int not null
alter table ORDINE add constraint [DEFVAL_ORDINENOME] default '' for [NOME]
alter table ORDINE add constraint [DEFVAL_ORDINECODICE] default 'abc' for [CODICE]
alter table ORDINE add constraint [DEFVAL_ORDINEQTA] default 0 for [QTA]
alter table ORDINE add constraint [DEFVAL_ORDINEFLAG] default 0 for [FLAG]
alter table ORDINE add constraint [DEFVAL_ORDINEDATA] default convert(varchar(8), getdate(), 112) for [DATA]
if not exists(select * from sys.indexes where object_id = object_id('ORDINE') and name='CUR_ORDINEPrimaryKey') alter table ORDINE add constraint CUR_ORDINEPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('ORDINE') and name='IX_NOME') create index IX_NOME on ORDINE ([NOME] desc)
if not exists(select * from sys.indexes where object_id = object_id('ORDINE') and name='IX_KEY') create index IX_KEY on ORDINE ([KEY] asc, [A-B] desc)
