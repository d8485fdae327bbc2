-- TdClose DOCUMENTO
catalog: append table DOCUMENTO ([IDRec] 3 0, [SYS_RECORD] 3 0, [LIVELLO] 2 0, [NUMERO] 3 0, [IMPORTO] 5 0, [PREZZO] 6 0, [DATA] 135 0, [ORA] 135 0, [EMESSO] 135 0, [ATTIVO] 11 0, [CHIUSO] 11 0, [CHIAVE] 72 0, [NOME] 202 50, [SIGLA] 202 10, [DESCR] 202 100, [TESTO] 203 0, [MEMO] 203 0)
execute: update DOCUMENTO set [SYS_RECORD]=0 where [SYS_RECORD] is null
execute: update DOCUMENTO set [LIVELLO]=0 where [LIVELLO] is null
execute: update DOCUMENTO set [PREZZO]=0 where [PREZZO] is null
execute: update DOCUMENTO set [DATA]=convert(varchar(8), getdate(), 112) where [DATA] is null
execute: update DOCUMENTO set [ORA]='18991230 '+convert(char(8), getdate(), 108) where [ORA] is null
execute: update DOCUMENTO set [ATTIVO]=0 where [ATTIVO] is null
execute: update DOCUMENTO set [CHIUSO]=0 where [CHIUSO] is null
execute: update DOCUMENTO set [NOME]='' where [NOME] is null
execute: update DOCUMENTO set [SIGLA]='abc' where [SIGLA] is null
execute: update DOCUMENTO set [MEMO]='' where [MEMO] is null
execute: if exists(select * from sysindexes where name = 'CUR_DOCUMENTOPrimaryKey') alter table DOCUMENTO drop constraint CUR_DOCUMENTOPrimaryKey
execute: alter table DOCUMENTO alter column [NOME] nvarchar(50) not null
execute: alter table DOCUMENTO alter column [SIGLA] nvarchar(10) not null
execute: alter table DOCUMENTO alter column [MEMO] ntext not null
execute: alter table DOCUMENTO alter column [IDRec] int not null
execute: alter table DOCUMENTO alter column [SIGLA] nvarchar(10) not null
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOSYS_RECORD] default 0 for [SYS_RECORD]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOLIVELLO] default 0 for [LIVELLO]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOPREZZO] default 0 for [PREZZO]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTODATA] default convert(varchar(8), getdate(), 112) for [DATA]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOORA] default '18991230 '+convert(char(8), getdate(), 108) for [ORA]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOATTIVO] default 0 for [ATTIVO]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOCHIUSO] default 0 for [CHIUSO]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTONOME] default '' for [NOME]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOSIGLA] default 'abc' for [SIGLA]
execute: alter table DOCUMENTO add constraint [DEFVAL_DOCUMENTOMEMO] default '' for [MEMO]
execute: if not exists(select * from sysindexes where id = object_id('DOCUMENTO') and name='CUR_DOCUMENTOPrimaryKey') alter table DOCUMENTO add constraint CUR_DOCUMENTOPrimaryKey primary key ([IDRec] asc)
execute: if not exists(select * from sysindexes where id = object_id('DOCUMENTO') and name='UX_SIGLA') create unique index UX_SIGLA on DOCUMENTO ([SIGLA] asc)
execute: if not exists(select * from sysindexes where id = object_id('DOCUMENTO') and name='IX_DATA') create index IX_DATA on DOCUMENTO ([DATA] desc, [NOME] asc)
-- TdClose RIGA
catalog: append table RIGA ([IDRec] 3 0, [IDDocumento] 3 0, [IDOrigine] 3 0, [IDCopia] 3 0, [QTA] 5 0)
execute: update RIGA set [QTA]=0 where [QTA] is null
execute: if exists(select * from sysindexes where name = 'CUR_RIGAPrimaryKey') alter table RIGA drop constraint CUR_RIGAPrimaryKey
execute: alter table RIGA alter column [IDRec] int not null
execute: alter table RIGA add constraint [DEFVAL_RIGAQTA] default 0 for [QTA]
execute: if not exists(select * from sysindexes where id = object_id('RIGA') and name='CUR_RIGAPrimaryKey') alter table RIGA add constraint CUR_RIGAPrimaryKey primary key ([IDRec] asc)
execute: if not exists(select * from sysindexes where id = object_id('RIGA') and name='IX_DOCUMENTO') create index IX_DOCUMENTO on RIGA ([IDDocumento] asc)
-- TdClose ALLEGATO
catalog: append table ALLEGATO ([IDRec] 3 0, [IDDocumento] 3 0, [FILE] 202 255)
execute: if exists(select * from sysindexes where name = 'CUR_ALLEGATOPrimaryKey') alter table ALLEGATO drop constraint CUR_ALLEGATOPrimaryKey
execute: alter table ALLEGATO alter column [IDRec] int not null
execute: if not exists(select * from sysindexes where id = object_id('ALLEGATO') and name='CUR_ALLEGATOPrimaryKey') alter table ALLEGATO add constraint CUR_ALLEGATOPrimaryKey primary key ([IDRec] asc)
-- RelClose FK_RIGA_DOCUMENTO
execute: alter table RIGA add constraint FK_RIGA_DOCUMENTO foreign key (IDDocumento) references DOCUMENTO (IDRec) on delete cascade on update cascade
-- RelClose FK_RIGA_ORIGINE
execute: alter table RIGA add constraint FK_RIGA_ORIGINE foreign key (IDOrigine) references DOCUMENTO (IDRec) on update cascade
execute: if exists (select name from sysobjects where name='TR_FK_RIGA_ORIGINE_UPD') drop trigger TR_FK_RIGA_ORIGINE_UPD
execute: create trigger TR_FK_RIGA_ORIGINE_UPD on DOCUMENTO for update as if update(IDRec) update RIGA set RIGA.IDOrigine = i.IDRec from inserted i inner join DOCUMENTO as T on i.IDRec=T.IDRec
-- RelClose FK_RIGA_COPIA
-- RelClose FK_ALLEGATO_DOCUMENTO
execute: alter table ALLEGATO add constraint FK_ALLEGATO_DOCUMENTO foreign key (IDDocumento) references DOCUMENTO (IDRec) on delete cascade
