-- TdClose DOCUMENTO
create table DOCUMENTO ([IDRec] int not null identity(1, 1), [SYS_RECORD] int not null, [LIVELLO] smallint, [NUMERO] int, [IMPORTO] float, [PREZZO] money, [DATA] datetime, [ORA] datetime, [EMESSO] datetime, [ATTIVO] bit, [CHIUSO] bit not null, [CHIAVE] uniqueidentifier not null, [NOME] nvarchar(50) not null, [SIGLA] nvarchar(10) not null, [DESCR] nvarchar(100), [TESTO] nvarchar(max), [MEMO] nvarchar(max) not null)
update DOCUMENTO set [SYS_RECORD]=0 where [SYS_RECORD] is null
update DOCUMENTO set [LIVELLO]=0 where [LIVELLO] is null
update DOCUMENTO set [PREZZO]=0 where [PREZZO] is null
update DOCUMENTO set [DATA]=convert(varchar(8), getdate(), 112) where [DATA] is null
update DOCUMENTO set [ORA]='18991230 '+convert(char(8), getdate(), 108) where [ORA] is null
update DOCUMENTO set [ATTIVO]=0 where [ATTIVO] is null
update DOCUMENTO set [CHIUSO]=0 where [CHIUSO] is null
update DOCUMENTO set [NOME]='' where [NOME] is null
update DOCUMENTO set [SIGLA]='abc' where [SIGLA] is null
update DOCUMENTO set [MEMO]='' where [MEMO] is null
if exists(select * from sysindexes where name = 'CUR_DOCUMENTOPrimaryKey') alter table DOCUMENTO drop constraint CUR_DOCUMENTOPrimaryKey
alter table DOCUMENTO alter column [NOME] nvarchar(50) not null
alter table DOCUMENTO alter column [SIGLA] nvarchar(10) not null
alter table DOCUMENTO alter column [MEMO] nvarchar(max) not null
alter table DOCUMENTO alter column [IDRec] int not null
alter table DOCUMENTO alter column [SIGLA] nvarchar(10) not null
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOSYS_RECORD] default 0 for [SYS_RECORD]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOLIVELLO] default 0 for [LIVELLO]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOPREZZO] default 0 for [PREZZO]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTODATA] default convert(varchar(8), getdate(), 112) for [DATA]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOORA] default '18991230 '+convert(char(8), getdate(), 108) for [ORA]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOATTIVO] default 0 for [ATTIVO]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOCHIUSO] default 0 for [CHIUSO]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTONOME] default '' for [NOME]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOSIGLA] default 'abc' for [SIGLA]
alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOMEMO] default '' for [MEMO]
if not exists(select * from sys.indexes where object_id = object_id('DOCUMENTO') and name='CUR_DOCUMENTOPrimaryKey') alter table DOCUMENTO add constraint CUR_DOCUMENTOPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOCUMENTO') and name='UX_SIGLA') create unique index UX_SIGLA on DOCUMENTO ([SIGLA] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOCUMENTO') and name='IX_DATA') create index IX_DATA on DOCUMENTO ([DATA] desc, [NOME] asc)
-- TdClose RIGA
create table RIGA ([IDRec] int not null identity(1, 1), [IDDocumento] int, [IDOrigine] int, [IDCopia] int, [QTA] float)
update RIGA set [QTA]=0 where [QTA] is null
if exists(select * from sysindexes where name = 'CUR_RIGAPrimaryKey') alter table RIGA drop constraint CUR_RIGAPrimaryKey
alter table RIGA alter column [IDRec] int not null
alter table RIGA add constraint [DEFVAL_RIGAQTA] default 0 for [QTA]
if not exists(select * from sys.indexes where object_id = object_id('RIGA') and name='CUR_RIGAPrimaryKey') alter table RIGA add constraint CUR_RIGAPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('RIGA') and name='IX_DOCUMENTO') create index IX_DOCUMENTO on RIGA ([IDDocumento] asc)
-- TdClose ALLEGATO
create table ALLEGATO ([IDRec] int not null identity(1, 1), [IDDocumento] int, [FILE] nvarchar(255))
if exists(select * from sysindexes where name = 'CUR_ALLEGATOPrimaryKey') alter table ALLEGATO drop constraint CUR_ALLEGATOPrimaryKey
alter table ALLEGATO alter column [IDRec] int not null
if not exists(select * from sys.indexes where object_id = object_id('ALLEGATO') and name='CUR_ALLEGATOPrimaryKey') alter table ALLEGATO add constraint CUR_ALLEGATOPrimaryKey primary key ([IDRec] asc)
-- RelClose FK_RIGA_DOCUMENTO
alter table RIGA add constraint FK_RIGA_DOCUMENTO foreign key (IDDocumento) references DOCUMENTO (IDRec) on delete cascade on update cascade
-- RelClose FK_RIGA_ORIGINE
alter table RIGA add constraint FK_RIGA_ORIGINE foreign key (IDOrigine) references DOCUMENTO (IDRec) on update cascade
if exists (select name from sysobjects where name='TR_FK_RIGA_ORIGINE_UPD') drop trigger TR_FK_RIGA_ORIGINE_UPD
create trigger TR_FK_RIGA_ORIGINE_UPD on DOCUMENTO for update as if update(IDRec) update RIGA set RIGA.IDOrigine = i.IDRec from inserted i inner join DOCUMENTO as T on i.IDRec=T.IDRec
-- RelClose FK_RIGA_COPIA
-- RelClose FK_ALLEGATO_DOCUMENTO
alter table ALLEGATO add constraint FK_ALLEGATO_DOCUMENTO foreign key (IDDocumento) references DOCUMENTO (IDRec) on delete cascade
