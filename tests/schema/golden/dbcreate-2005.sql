create database QZ
create table AGEN_DBDELEGATI ([IDRec] int not null identity(1, 1), [ID_ANAG_DELEG] int, [ID_ANAG_SOGG] int, [FLAG_SOGGTRASM] bit, [SYS_SERIALE] nvarchar(16))
update AGEN_DBDELEGATI set [FLAG_SOGGTRASM]=0 where [FLAG_SOGGTRASM] is null
if exists(select * from sysindexes where name = 'CUR_AGEN_DBDELEGATIPrimaryKey') alter table AGEN_DBDELEGATI drop constraint CUR_AGEN_DBDELEGATIPrimaryKey
alter table AGEN_DBDELEGATI alter column [IDRec] int not null
alter table AGEN_DBDELEGATI add constraint [DEFVAL_AGEN_DBDELEGATIFLAG_SOGGTRASM] default 0 for [FLAG_SOGGTRASM]
if not exists(select * from sys.indexes where object_id = object_id('AGEN_DBDELEGATI') and name='CUR_AGEN_DBDELEGATIPrimaryKey') alter table AGEN_DBDELEGATI add constraint CUR_AGEN_DBDELEGATIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_DBDELEGATI') and name='ID_ANAG_DELEG') create index ID_ANAG_DELEG on AGEN_DBDELEGATI ([ID_ANAG_DELEG] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_DBDELEGATI') and name='ID_ANAG_SOGG') create index ID_ANAG_SOGG on AGEN_DBDELEGATI ([ID_ANAG_SOGG] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_DBDELEGATI') and name='IDRec') create index IDRec on AGEN_DBDELEGATI ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_DBDELEGATI') and name='SYS_SERIALE') create index SYS_SERIALE on AGEN_DBDELEGATI ([SYS_SERIALE] asc)
create table AGEN_LUOGHICONS ([IDLuogo] int not null identity(1, 1), [IDAnagContr] int, [IDAnagInt] int, [SYS_SERIALE] nvarchar(16), [ComuneStato] nvarchar(40), [Provincia] nvarchar(2), [IndirizzoVia] nvarchar(35), [IndirizzoNumero] nvarchar(6), [IndirizzoCAP] nvarchar(5))
if exists(select * from sysindexes where name = 'CUR_AGEN_LUOGHICONSPrimaryKey') alter table AGEN_LUOGHICONS drop constraint CUR_AGEN_LUOGHICONSPrimaryKey
alter table AGEN_LUOGHICONS alter column [IDLuogo] int not null
if not exists(select * from sys.indexes where object_id = object_id('AGEN_LUOGHICONS') and name='CUR_AGEN_LUOGHICONSPrimaryKey') alter table AGEN_LUOGHICONS add constraint CUR_AGEN_LUOGHICONSPrimaryKey primary key ([IDLuogo] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_LUOGHICONS') and name='IDAnagContr') create index IDAnagContr on AGEN_LUOGHICONS ([IDAnagContr] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_LUOGHICONS') and name='IDAnagInt') create index IDAnagInt on AGEN_LUOGHICONS ([IDAnagInt] asc)
if not exists(select * from sys.indexes where object_id = object_id('AGEN_LUOGHICONS') and name='Seriale') create index Seriale on AGEN_LUOGHICONS ([SYS_SERIALE] asc)
create table QZSYSTEM ([VERSIONE] int, [LOCKED] bit, [LOCKED_NOTE] nvarchar(255), [DESCRIZIONE] nvarchar(255), [PARAMETRI] nvarchar(255), [CHECK] nvarchar(max), [FOLIATRA_DATA_SYNC] datetime, [FOLIATRA_DATA_SYNC_VAL] datetime, [IDRec] int not null identity(1, 1))
update QZSYSTEM set [VERSIONE]=0 where [VERSIONE] is null
update QZSYSTEM set [LOCKED]=0 where [LOCKED] is null
if exists(select * from sysindexes where name = 'CUR_QZSYSTEMPrimaryKey') alter table QZSYSTEM drop constraint CUR_QZSYSTEMPrimaryKey
alter table QZSYSTEM alter column [IDRec] int not null
alter table QZSYSTEM add constraint [DEFVAL_QZSYSTEMVERSIONE] default 0 for [VERSIONE]
alter table QZSYSTEM add constraint [DEFVAL_QZSYSTEMLOCKED] default 0 for [LOCKED]
if not exists(select * from sys.indexes where object_id = object_id('QZSYSTEM') and name='CUR_QZSYSTEMPrimaryKey') alter table QZSYSTEM add constraint CUR_QZSYSTEMPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('QZSYSTEM') and name='IDRec') create index IDRec on QZSYSTEM ([IDRec] asc)
create table Anag_01_Anagrafica ([ID_Anag] int not null identity(1, 1), [GUID] uniqueidentifier not null, [Denominazione] nvarchar(255), [Cognome] nvarchar(255), [Nome] nvarchar(255), [Ditta] nvarchar(255), [PIva] nvarchar(20), [CodFisc] nvarchar(20), [ID_Paese] int, [FlagPF] bit, [Sesso] nvarchar(1), [DataNascita] datetime, [CodComuneNascita] nvarchar(4), [EmailPEC] nvarchar(255), [Email] nvarchar(255), [Dominio] nvarchar(255), [Tel] nvarchar(20), [Cell] nvarchar(20), [Fax] nvarchar(20), [ID_Titolo] int, [NaturaGiuridica] int, [Ridotta] bit)
update Anag_01_Anagrafica set [FlagPF]=0 where [FlagPF] is null
update Anag_01_Anagrafica set [Ridotta]=0 where [Ridotta] is null
if exists(select * from sysindexes where name = 'CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica') alter table Anag_01_Anagrafica drop constraint CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica
alter table Anag_01_Anagrafica alter column [ID_Anag] int not null
alter table Anag_01_Anagrafica alter column [GUID] uniqueidentifier not null
alter table Anag_01_Anagrafica add constraint [DEFVAL_Anag_01_AnagraficaFlagPF] default 0 for [FlagPF]
alter table Anag_01_Anagrafica add constraint [DEFVAL_Anag_01_AnagraficaRidotta] default 0 for [Ridotta]
if not exists(select * from sys.indexes where object_id = object_id('Anag_01_Anagrafica') and name='CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica') alter table Anag_01_Anagrafica add constraint CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica primary key ([ID_Anag] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_01_Anagrafica') and name='IX_Anag_Anagrafica') create unique index IX_Anag_Anagrafica on Anag_01_Anagrafica ([GUID] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_01_Anagrafica') and name='IX_Anag_01_Anagrafica_CFIS') create index IX_Anag_01_Anagrafica_CFIS on Anag_01_Anagrafica ([CodFisc] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_01_Anagrafica') and name='IX_Anag_01_Anagrafica_PIVA') create index IX_Anag_01_Anagrafica_PIVA on Anag_01_Anagrafica ([PIva] asc)
create table Anag_02_Comuni ([ID_Catasto] int not null identity(1, 1), [Cod_Catasto] nvarchar(4) not null, [Cod_ISTAT] int, [Denom_ITA] nvarchar(max), [Denom_Estero] nvarchar(max), [Cod_Provincia] nvarchar(3), [Cod_Citta_Metr] nvarchar(3), [Cod_Regione] nvarchar(3), [Soppresso] bit, [Data_aggiornamento] datetime, [Note_variazione] nvarchar(max), [Cod_Catasto_Nuovo] nvarchar(4), [Denom_Nuovo] nvarchar(max))
update Anag_02_Comuni set [Cod_Catasto]='' where [Cod_Catasto] is null
update Anag_02_Comuni set [Soppresso]=0 where [Soppresso] is null
if exists(select * from sysindexes where name = 'CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni') alter table Anag_02_Comuni drop constraint CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni
alter table Anag_02_Comuni alter column [Cod_Catasto] nvarchar(4) not null
alter table Anag_02_Comuni alter column [ID_Catasto] int not null
alter table Anag_02_Comuni alter column [Cod_Catasto] nvarchar(4) not null
alter table Anag_02_Comuni add constraint [DEFVAL_Anag_02_ComuniCod_Catasto] default '' for [Cod_Catasto]
alter table Anag_02_Comuni add constraint [DEFVAL_Anag_02_ComuniSoppresso] default 0 for [Soppresso]
if not exists(select * from sys.indexes where object_id = object_id('Anag_02_Comuni') and name='CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni') alter table Anag_02_Comuni add constraint CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni primary key ([ID_Catasto] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_02_Comuni') and name='IX_Anag_Comuni') create unique index IX_Anag_Comuni on Anag_02_Comuni ([Cod_Catasto] asc)
create table Anag_03_Cap ([ID_Cap] int not null identity(1, 1), [GUID] uniqueidentifier not null, [Cod_Catasto] nvarchar(4), [Frazione] nvarchar(max), [Frazione_Alt] nvarchar(max), [Indirizzo] nvarchar(max), [Strada] nvarchar(max), [Nota] nvarchar(max), [Cap] nvarchar(max))
if exists(select * from sysindexes where name = 'CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap') alter table Anag_03_Cap drop constraint CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap
alter table Anag_03_Cap alter column [ID_Cap] int not null
alter table Anag_03_Cap alter column [GUID] uniqueidentifier not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_03_Cap') and name='CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap') alter table Anag_03_Cap add constraint CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap primary key ([ID_Cap] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_03_Cap') and name='IX_Anag_Cap') create unique index IX_Anag_Cap on Anag_03_Cap ([GUID] asc)
create table Anag_04_Province ([ID_Prov] int not null identity(1, 1), [ID_CittaMetr] int, [ID_Regione] int, [Provincia] nvarchar(max), [Provincia_Estero] nvarchar(max), [Sigla] nvarchar(2), [CittaMetr] bit)
update Anag_04_Province set [CittaMetr]=0 where [CittaMetr] is null
if exists(select * from sysindexes where name = 'CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro') alter table Anag_04_Province drop constraint CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro
alter table Anag_04_Province alter column [ID_Prov] int not null
alter table Anag_04_Province add constraint [DEFVAL_Anag_04_ProvinceCittaMetr] default 0 for [CittaMetr]
if not exists(select * from sys.indexes where object_id = object_id('Anag_04_Province') and name='CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro') alter table Anag_04_Province add constraint CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro primary key ([ID_Prov] asc)
create table Anag_05_Regioni ([ID_Regione] int not null identity(1, 1), [Regione] nvarchar(max), [Regione_Estero] nvarchar(max), [ID_Area] int)
if exists(select * from sysindexes where name = 'CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg') alter table Anag_05_Regioni drop constraint CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg
alter table Anag_05_Regioni alter column [ID_Regione] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_05_Regioni') and name='CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg') alter table Anag_05_Regioni add constraint CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg primary key ([ID_Regione] asc)
create table Anag_06_AreeGeografiche ([ID_Area] int not null, [Area] nvarchar(max))
if exists(select * from sysindexes where name = 'CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are') alter table Anag_06_AreeGeografiche drop constraint CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are
alter table Anag_06_AreeGeografiche alter column [ID_Area] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_06_AreeGeografiche') and name='CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are') alter table Anag_06_AreeGeografiche add constraint CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are primary key ([ID_Area] asc)
create table Anag_AnagraficaExt ([ID_AnagExt] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [RegimeFiscale] int not null, [LiquidazioneIVA] int, [CCIAAIscrizione] int, [CCIAASede] nvarchar(50), [CodAlbo] int, [SedeAlbo] nvarchar(4), [Numero] int)
if exists(select * from sysindexes where name = 'CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt') alter table Anag_AnagraficaExt drop constraint CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt
alter table Anag_AnagraficaExt alter column [ID_AnagExt] int not null
alter table Anag_AnagraficaExt alter column [GUID] uniqueidentifier not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_AnagraficaExt') and name='CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt') alter table Anag_AnagraficaExt add constraint CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt primary key ([ID_AnagExt] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_AnagraficaExt') and name='IX_Anag_AnagraficaExt') create unique index IX_Anag_AnagraficaExt on Anag_AnagraficaExt ([GUID] asc)
create table Anag_AnagRuoli ([ID_RuoloAnag] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [ID_Ruolo] int)
if exists(select * from sysindexes where name = 'CUR_Anag_AnagRuoliPK_Anag_AnagRuoli') alter table Anag_AnagRuoli drop constraint CUR_Anag_AnagRuoliPK_Anag_AnagRuoli
alter table Anag_AnagRuoli alter column [ID_RuoloAnag] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_AnagRuoli') and name='CUR_Anag_AnagRuoliPK_Anag_AnagRuoli') alter table Anag_AnagRuoli add constraint CUR_Anag_AnagRuoliPK_Anag_AnagRuoli primary key ([ID_RuoloAnag] asc)
create table Anag_Attivita ([ID_Attivita] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [Descrizione] nvarchar(max), [Cod_Attivita] int)
update Anag_Attivita set [Cod_Attivita]=0 where [Cod_Attivita] is null
if exists(select * from sysindexes where name = 'CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita') alter table Anag_Attivita drop constraint CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita
alter table Anag_Attivita alter column [ID_Attivita] int not null
alter table Anag_Attivita alter column [GUID] uniqueidentifier not null
alter table Anag_Attivita add constraint [DEFVAL_Anag_AttivitaCod_Attivita] default 0 for [Cod_Attivita]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Attivita') and name='CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita') alter table Anag_Attivita add constraint CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita primary key ([ID_Attivita] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Attivita') and name='IX_Anag_Attivita') create unique index IX_Anag_Attivita on Anag_Attivita ([GUID] asc)
create table Anag_Cert ([ID_Cert] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Utente] uniqueidentifier not null, [AGIDResponsabile] bit, [AGIDIncaricoAziendale] nvarchar(100), [AGIDInizioIncarico] datetime, [AGIDFineIncarico] datetime, [AGIDFirmaQAbile] bit, [AGIDFirmaSAbile] bit, [AGIDOrganizzazione] nvarchar(100), [AGIDCertStore] nvarchar(max), [AGIDCertQDefault] nvarchar(max), [AGIDCertSDefault] nvarchar(max), [AGIDSysInfoOK] bit)
update Anag_Cert set [AGIDResponsabile]=0 where [AGIDResponsabile] is null
update Anag_Cert set [AGIDFirmaQAbile]=0 where [AGIDFirmaQAbile] is null
update Anag_Cert set [AGIDFirmaSAbile]=0 where [AGIDFirmaSAbile] is null
update Anag_Cert set [AGIDSysInfoOK]=0 where [AGIDSysInfoOK] is null
if exists(select * from sysindexes where name = 'CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert') alter table Anag_Cert drop constraint CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert
alter table Anag_Cert alter column [ID_Cert] int not null
alter table Anag_Cert alter column [GUID] uniqueidentifier not null
alter table Anag_Cert add constraint [DEFVAL_Anag_CertAGIDResponsabile] default 0 for [AGIDResponsabile]
alter table Anag_Cert add constraint [DEFVAL_Anag_CertAGIDFirmaQAbile] default 0 for [AGIDFirmaQAbile]
alter table Anag_Cert add constraint [DEFVAL_Anag_CertAGIDFirmaSAbile] default 0 for [AGIDFirmaSAbile]
alter table Anag_Cert add constraint [DEFVAL_Anag_CertAGIDSysInfoOK] default 0 for [AGIDSysInfoOK]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Cert') and name='CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert') alter table Anag_Cert add constraint CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert primary key ([ID_Cert] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Cert') and name='IX_Anag_Cert') create unique index IX_Anag_Cert on Anag_Cert ([GUID] asc)
create table Anag_Email ([IDEmail] int not null, [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [Email] nvarchar(255), [PEC] bit, [Note] nvarchar(max))
update Anag_Email set [PEC]=0 where [PEC] is null
if exists(select * from sysindexes where name = 'CUR_Anag_EmailPK_Anag_Email') alter table Anag_Email drop constraint CUR_Anag_EmailPK_Anag_Email
alter table Anag_Email alter column [GUID] uniqueidentifier not null
alter table Anag_Email alter column [IDEmail] int not null
alter table Anag_Email add constraint [DEFVAL_Anag_EmailPEC] default 0 for [PEC]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Email') and name='CUR_Anag_EmailPK_Anag_Email') alter table Anag_Email add constraint CUR_Anag_EmailPK_Anag_Email primary key ([IDEmail] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Email') and name='GUID_Email') create unique index GUID_Email on Anag_Email ([GUID] asc)
create table Anag_Indirizzi ([ID_Indirizzo] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [GUID_TipoInd] uniqueidentifier not null, [DenominazioneIndirizzo] nvarchar(255), [Strada] nvarchar(20), [Via] nvarchar(65), [NumeroCivico] nvarchar(10), [Cap] nvarchar(5), [Comune] nvarchar(max), [Frazione] nvarchar(max), [Note] nvarchar(max), [Tel] nvarchar(20), [Cell] nvarchar(20), [Fax] nvarchar(20))
if exists(select * from sysindexes where name = 'CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi') alter table Anag_Indirizzi drop constraint CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi
alter table Anag_Indirizzi alter column [ID_Indirizzo] int not null
alter table Anag_Indirizzi alter column [GUID] uniqueidentifier not null
alter table Anag_Indirizzi alter column [GUID_Anag] uniqueidentifier not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_Indirizzi') and name='CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi') alter table Anag_Indirizzi add constraint CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi primary key ([ID_Indirizzo] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Indirizzi') and name='IX_Anag_Indirizzi') create unique index IX_Anag_Indirizzi on Anag_Indirizzi ([GUID] asc, [GUID_Anag] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Indirizzi') and name='Anag_IndirizziGUID') create index Anag_IndirizziGUID on Anag_Indirizzi ([GUID] asc)
create table Anag_Liquidazione ([ID_Liq] int not null, [Descrizione] nvarchar(30))
if exists(select * from sysindexes where name = 'CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq') alter table Anag_Liquidazione drop constraint CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq
alter table Anag_Liquidazione alter column [ID_Liq] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_Liquidazione') and name='CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq') alter table Anag_Liquidazione add constraint CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq primary key ([ID_Liq] asc)
create table Anag_NaturaGiuridica ([ID_NatGiuridica] int not null, [NaturaGiuridica] nvarchar(max), [SoggettiResidenti] bit)
update Anag_NaturaGiuridica set [SoggettiResidenti]=0 where [SoggettiResidenti] is null
if exists(select * from sysindexes where name = 'CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat') alter table Anag_NaturaGiuridica drop constraint CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat
alter table Anag_NaturaGiuridica alter column [ID_NatGiuridica] int not null
alter table Anag_NaturaGiuridica add constraint [DEFVAL_Anag_NaturaGiuridicaSoggettiResidenti] default 0 for [SoggettiResidenti]
if not exists(select * from sys.indexes where object_id = object_id('Anag_NaturaGiuridica') and name='CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat') alter table Anag_NaturaGiuridica add constraint CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat primary key ([ID_NatGiuridica] asc)
create table Anag_PercorsiFile ([ID_PercorsoFile] int not null identity(1, 1), [GUID_Anag] uniqueidentifier not null, [GUID_Attivita] uniqueidentifier not null, [Cod_Proc] nvarchar(50) not null, [Percorso] nvarchar(max))
update Anag_PercorsiFile set [Cod_Proc]='' where [Cod_Proc] is null
if exists(select * from sysindexes where name = 'CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile') alter table Anag_PercorsiFile drop constraint CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile
alter table Anag_PercorsiFile alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_PercorsiFile alter column [ID_PercorsoFile] int not null
alter table Anag_PercorsiFile alter column [GUID_Anag] uniqueidentifier not null
alter table Anag_PercorsiFile alter column [GUID_Attivita] uniqueidentifier not null
alter table Anag_PercorsiFile alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_PercorsiFile add constraint [DEFVAL_Anag_PercorsiFileCod_Proc] default '' for [Cod_Proc]
if not exists(select * from sys.indexes where object_id = object_id('Anag_PercorsiFile') and name='CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile') alter table Anag_PercorsiFile add constraint CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile primary key ([ID_PercorsoFile] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_PercorsiFile') and name='IX_Anag_PercorsiFile') create unique index IX_Anag_PercorsiFile on Anag_PercorsiFile ([GUID_Anag] asc, [GUID_Attivita] asc, [Cod_Proc] asc)
create table Anag_ProcCodici ([ID_Codice] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [GUID_Attivita] uniqueidentifier not null, [Cod_Proc] nvarchar(50) not null, [Codice] nvarchar(50) not null, [Descrizione] nvarchar(max))
update Anag_ProcCodici set [Cod_Proc]='' where [Cod_Proc] is null
update Anag_ProcCodici set [Codice]='' where [Codice] is null
if exists(select * from sysindexes where name = 'CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici') alter table Anag_ProcCodici drop constraint CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici
alter table Anag_ProcCodici alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_ProcCodici alter column [Codice] nvarchar(50) not null
alter table Anag_ProcCodici alter column [ID_Codice] int not null
alter table Anag_ProcCodici alter column [GUID_Anag] uniqueidentifier not null
alter table Anag_ProcCodici alter column [GUID_Attivita] uniqueidentifier not null
alter table Anag_ProcCodici alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_ProcCodici alter column [Codice] nvarchar(50) not null
alter table Anag_ProcCodici add constraint [DEFVAL_Anag_ProcCodiciCod_Proc] default '' for [Cod_Proc]
alter table Anag_ProcCodici add constraint [DEFVAL_Anag_ProcCodiciCodice] default '' for [Codice]
if not exists(select * from sys.indexes where object_id = object_id('Anag_ProcCodici') and name='CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici') alter table Anag_ProcCodici add constraint CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici primary key ([ID_Codice] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_ProcCodici') and name='IX_Anag_ProcCodici') create unique index IX_Anag_ProcCodici on Anag_ProcCodici ([GUID_Anag] asc, [GUID_Attivita] asc, [Cod_Proc] asc, [Codice] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_ProcCodici') and name='Anag_ProcCodiciGUID') create index Anag_ProcCodiciGUID on Anag_ProcCodici ([GUID] asc)
create table Anag_Procedure ([ID_Proc] int not null identity(1, 1), [Cod_Proc] nvarchar(50) not null, [Procedura] nvarchar(50))
update Anag_Procedure set [Cod_Proc]='' where [Cod_Proc] is null
if exists(select * from sysindexes where name = 'CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure') alter table Anag_Procedure drop constraint CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure
alter table Anag_Procedure alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_Procedure alter column [ID_Proc] int not null
alter table Anag_Procedure alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_Procedure add constraint [DEFVAL_Anag_ProcedureCod_Proc] default '' for [Cod_Proc]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Procedure') and name='CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure') alter table Anag_Procedure add constraint CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure primary key ([ID_Proc] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Procedure') and name='IX_Anag_Procedure') create unique index IX_Anag_Procedure on Anag_Procedure ([Cod_Proc] asc)
create table Anag_RegimeFiscale ([ID_RegimeFiscale] int not null identity(1, 1), [RegimeFiscale] nvarchar(max))
if exists(select * from sysindexes where name = 'CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg') alter table Anag_RegimeFiscale drop constraint CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg
alter table Anag_RegimeFiscale alter column [ID_RegimeFiscale] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_RegimeFiscale') and name='CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg') alter table Anag_RegimeFiscale add constraint CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg primary key ([ID_RegimeFiscale] asc)
create table Anag_Ruoli ([ID_Ruolo] int not null identity(1, 1), [Flag_PF] bit, [ID_TipoRuolo] int not null, [ID_RuoloPadre] int, [Ruolo] nvarchar(max))
update Anag_Ruoli set [Flag_PF]=0 where [Flag_PF] is null
if exists(select * from sysindexes where name = 'CUR_Anag_RuoliAnag_Ruo') alter table Anag_Ruoli drop constraint CUR_Anag_RuoliAnag_Ruo
alter table Anag_Ruoli alter column [ID_Ruolo] int not null
alter table Anag_Ruoli add constraint [DEFVAL_Anag_RuoliFlag_PF] default 0 for [Flag_PF]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Ruoli') and name='CUR_Anag_RuoliAnag_Ruo') alter table Anag_Ruoli add constraint CUR_Anag_RuoliAnag_Ruo primary key ([ID_Ruolo] asc)
create table Anag_RuoliTipi ([IDRec] int not null identity(1, 1), [Descrizione] nvarchar(50))
if exists(select * from sysindexes where name = 'CUR_Anag_RuoliTipiPK_Anag_RuoliTipi') alter table Anag_RuoliTipi drop constraint CUR_Anag_RuoliTipiPK_Anag_RuoliTipi
alter table Anag_RuoliTipi alter column [IDRec] int not null
if not exists(select * from sys.indexes where object_id = object_id('Anag_RuoliTipi') and name='CUR_Anag_RuoliTipiPK_Anag_RuoliTipi') alter table Anag_RuoliTipi add constraint CUR_Anag_RuoliTipiPK_Anag_RuoliTipi primary key ([IDRec] asc)
create table Anag_Utenti ([ID_Utente] int not null identity(1, 1), [GUID] uniqueidentifier not null, [GUID_Anag] uniqueidentifier not null, [Utente] nvarchar(25) not null, [Utente_Completo] nvarchar(40) not null, [Password] nvarchar(25), [Servizio] nvarchar(50), [Admin] bit, [Sicurezza] int, [SecretKey] int, [DomainUser] nvarchar(100), [SYS_Web] bit, [SYS_LastViewUpd] datetime)
update Anag_Utenti set [Utente]='' where [Utente] is null
update Anag_Utenti set [Utente_Completo]='' where [Utente_Completo] is null
update Anag_Utenti set [Admin]=0 where [Admin] is null
update Anag_Utenti set [SYS_Web]=0 where [SYS_Web] is null
if exists(select * from sysindexes where name = 'CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti') alter table Anag_Utenti drop constraint CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti
alter table Anag_Utenti alter column [Utente] nvarchar(25) not null
alter table Anag_Utenti alter column [Utente_Completo] nvarchar(40) not null
alter table Anag_Utenti alter column [ID_Utente] int not null
alter table Anag_Utenti alter column [GUID] uniqueidentifier not null
alter table Anag_Utenti add constraint [DEFVAL_Anag_UtentiUtente] default '' for [Utente]
alter table Anag_Utenti add constraint [DEFVAL_Anag_UtentiUtente_Completo] default '' for [Utente_Completo]
alter table Anag_Utenti add constraint [DEFVAL_Anag_UtentiAdmin] default 0 for [Admin]
alter table Anag_Utenti add constraint [DEFVAL_Anag_UtentiSYS_Web] default 0 for [SYS_Web]
if not exists(select * from sys.indexes where object_id = object_id('Anag_Utenti') and name='CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti') alter table Anag_Utenti add constraint CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti primary key ([ID_Utente] asc)
if not exists(select * from sys.indexes where object_id = object_id('Anag_Utenti') and name='IX_Anag_Utenti') create unique index IX_Anag_Utenti on Anag_Utenti ([GUID] asc)
create table APPLICATIVI ([ID_APPLICATIVO] int not null identity(1, 1), [COMPUTER] nvarchar(255) not null, [APPLICATIVO] nvarchar(255), [PRE-PARAMETRI] nvarchar(255), [POST-PARAMETRI] nvarchar(255), [ESTENSIONI] nvarchar(255), [FLAG_ARCHIVIO] bit, [SYS_SERIALE] nvarchar(16))
update APPLICATIVI set [COMPUTER]='' where [COMPUTER] is null
update APPLICATIVI set [FLAG_ARCHIVIO]=0 where [FLAG_ARCHIVIO] is null
if exists(select * from sysindexes where name = 'CUR_APPLICATIVIPrimaryKey') alter table APPLICATIVI drop constraint CUR_APPLICATIVIPrimaryKey
alter table APPLICATIVI alter column [COMPUTER] nvarchar(255) not null
alter table APPLICATIVI alter column [ID_APPLICATIVO] int not null
alter table APPLICATIVI add constraint [DEFVAL_APPLICATIVICOMPUTER] default '' for [COMPUTER]
alter table APPLICATIVI add constraint [DEFVAL_APPLICATIVIFLAG_ARCHIVIO] default 0 for [FLAG_ARCHIVIO]
if not exists(select * from sys.indexes where object_id = object_id('APPLICATIVI') and name='CUR_APPLICATIVIPrimaryKey') alter table APPLICATIVI add constraint CUR_APPLICATIVIPrimaryKey primary key ([ID_APPLICATIVO] asc)
if not exists(select * from sys.indexes where object_id = object_id('APPLICATIVI') and name='ID_APPLICATIVO') create index ID_APPLICATIVO on APPLICATIVI ([ID_APPLICATIVO] asc)
create table ARCHI_FAX ([RICEVUTI] bit, [SYS_SERIALE] nvarchar(16), [ATTIVO] bit, [PROFILO] nvarchar(255), [FAX_BACK] nvarchar(255), [PASSWORD] nvarchar(50), [ESTENSIONI] nvarchar(255), [INDIRIZZI] nvarchar(255), [STAMPA] bit, [STAMPANTE] nvarchar(64), [STAMPA_COPIE] int, [ELIMINA] bit, [COMPUTER] nvarchar(50), [NUMMODEM] int, [DIRRICEV] nvarchar(255), [PREFISSO] nvarchar(10), [NUM_TENT] int, [NUM_MINUTI] int, [ID_FAX] int not null identity(1, 1))
update ARCHI_FAX set [RICEVUTI]=0 where [RICEVUTI] is null
update ARCHI_FAX set [ATTIVO]=0 where [ATTIVO] is null
update ARCHI_FAX set [STAMPA]=0 where [STAMPA] is null
update ARCHI_FAX set [STAMPA_COPIE]=1 where [STAMPA_COPIE] is null
update ARCHI_FAX set [ELIMINA]=0 where [ELIMINA] is null
update ARCHI_FAX set [NUMMODEM]=0 where [NUMMODEM] is null
update ARCHI_FAX set [NUM_TENT]=0 where [NUM_TENT] is null
update ARCHI_FAX set [NUM_MINUTI]=0 where [NUM_MINUTI] is null
if exists(select * from sysindexes where name = 'CUR_ARCHI_FAXPrimaryKey') alter table ARCHI_FAX drop constraint CUR_ARCHI_FAXPrimaryKey
alter table ARCHI_FAX alter column [ID_FAX] int not null
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXRICEVUTI] default 0 for [RICEVUTI]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXATTIVO] default 0 for [ATTIVO]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXSTAMPA] default 0 for [STAMPA]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXSTAMPA_COPIE] default 1 for [STAMPA_COPIE]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXELIMINA] default 0 for [ELIMINA]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXNUMMODEM] default 0 for [NUMMODEM]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXNUM_TENT] default 0 for [NUM_TENT]
alter table ARCHI_FAX add constraint [DEFVAL_ARCHI_FAXNUM_MINUTI] default 0 for [NUM_MINUTI]
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_FAX') and name='CUR_ARCHI_FAXPrimaryKey') alter table ARCHI_FAX add constraint CUR_ARCHI_FAXPrimaryKey primary key ([ID_FAX] asc)
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_FAX') and name='ID_FAX') create index ID_FAX on ARCHI_FAX ([ID_FAX] asc)
create table ARCHI_PRINT ([COMPUTER] nvarchar(255), [FILE] bit, [PERCORSO] nvarchar(255), [ATTIVO] bit, [SCHEMA] nvarchar(16), [SYS_SERIALE] nvarchar(16), [SOST_DOC] bit, [REFRESH_DOC] bit, [REFRESH_ADD] bit, [SOST_NO_FILE2] bit, [STAMPA_SPOOL] bit, [STAMPANTE] nvarchar(64), [STAMPA_COPIE] smallint, [COPIA_SPOOL] bit, [COPIA_PERCORSO] nvarchar(255), [COPIA_ORIGINALE] bit, [FIND_SUBFOLDER] bit, [SUBFOLDER_LEVEL] int, [ID_APRINT] int not null identity(1, 1), [ETICHETTA] nvarchar(60), [CREATE_IMAGE] bit, [ONLY_LINKS] bit, [APPEND_PAGES] bit)
update ARCHI_PRINT set [FILE]=0 where [FILE] is null
update ARCHI_PRINT set [ATTIVO]=0 where [ATTIVO] is null
update ARCHI_PRINT set [SOST_DOC]=0 where [SOST_DOC] is null
update ARCHI_PRINT set [REFRESH_DOC]=0 where [REFRESH_DOC] is null
update ARCHI_PRINT set [REFRESH_ADD]=0 where [REFRESH_ADD] is null
update ARCHI_PRINT set [SOST_NO_FILE2]=0 where [SOST_NO_FILE2] is null
update ARCHI_PRINT set [STAMPA_SPOOL]=0 where [STAMPA_SPOOL] is null
update ARCHI_PRINT set [COPIA_SPOOL]=0 where [COPIA_SPOOL] is null
update ARCHI_PRINT set [COPIA_ORIGINALE]=0 where [COPIA_ORIGINALE] is null
update ARCHI_PRINT set [FIND_SUBFOLDER]=0 where [FIND_SUBFOLDER] is null
update ARCHI_PRINT set [SUBFOLDER_LEVEL]=0 where [SUBFOLDER_LEVEL] is null
update ARCHI_PRINT set [CREATE_IMAGE]=0 where [CREATE_IMAGE] is null
update ARCHI_PRINT set [ONLY_LINKS]=0 where [ONLY_LINKS] is null
update ARCHI_PRINT set [APPEND_PAGES]=0 where [APPEND_PAGES] is null
if exists(select * from sysindexes where name = 'CUR_ARCHI_PRINTPrimaryKey') alter table ARCHI_PRINT drop constraint CUR_ARCHI_PRINTPrimaryKey
alter table ARCHI_PRINT alter column [ID_APRINT] int not null
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTFILE] default 0 for [FILE]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTATTIVO] default 0 for [ATTIVO]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTSOST_DOC] default 0 for [SOST_DOC]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTREFRESH_DOC] default 0 for [REFRESH_DOC]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTREFRESH_ADD] default 0 for [REFRESH_ADD]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTSOST_NO_FILE2] default 0 for [SOST_NO_FILE2]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTSTAMPA_SPOOL] default 0 for [STAMPA_SPOOL]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTCOPIA_SPOOL] default 0 for [COPIA_SPOOL]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTCOPIA_ORIGINALE] default 0 for [COPIA_ORIGINALE]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTFIND_SUBFOLDER] default 0 for [FIND_SUBFOLDER]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTSUBFOLDER_LEVEL] default 0 for [SUBFOLDER_LEVEL]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTCREATE_IMAGE] default 0 for [CREATE_IMAGE]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTONLY_LINKS] default 0 for [ONLY_LINKS]
alter table ARCHI_PRINT add constraint [DEFVAL_ARCHI_PRINTAPPEND_PAGES] default 0 for [APPEND_PAGES]
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_PRINT') and name='CUR_ARCHI_PRINTPrimaryKey') alter table ARCHI_PRINT add constraint CUR_ARCHI_PRINTPrimaryKey primary key ([ID_APRINT] asc)
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_PRINT') and name='ID_APRINT') create index ID_APRINT on ARCHI_PRINT ([ID_APRINT] asc)
create table ARCHI_SEND ([Attivo] bit, [ID] int not null identity(1, 1), [Computer] nvarchar(35), [NomeArchivio] nvarchar(80), [File_SYS] nvarchar(20), [FileNomeAtt] nvarchar(100), [UtenteFileNomeAtt] nvarchar(max), [Firma_Sys] nvarchar(20), [Filtro] nvarchar(150), [CampoFrom] nvarchar(20), [CampoMail] nvarchar(20), [CampoInviato] nvarchar(20), [Archivio] nvarchar(20), [Oggetto] nvarchar(20), [UtenteOggetto] nvarchar(max), [Note] nvarchar(20), [UtenteCorpo] nvarchar(max), [Data] nvarchar(20), [Ora] nvarchar(20))
update ARCHI_SEND set [Attivo]=0 where [Attivo] is null
if exists(select * from sysindexes where name = 'CUR_ARCHI_SENDPrimaryKey') alter table ARCHI_SEND drop constraint CUR_ARCHI_SENDPrimaryKey
alter table ARCHI_SEND alter column [ID] int not null
alter table ARCHI_SEND add constraint [DEFVAL_ARCHI_SENDAttivo] default 0 for [Attivo]
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_SEND') and name='CUR_ARCHI_SENDPrimaryKey') alter table ARCHI_SEND add constraint CUR_ARCHI_SENDPrimaryKey primary key ([ID] asc)
if not exists(select * from sys.indexes where object_id = object_id('ARCHI_SEND') and name='ID') create index [ID] on ARCHI_SEND ([ID] asc)
create table AREE ([ID_AREA] int not null identity(1, 1), [ID_PARENT] int, [AREA] nvarchar(100) not null)
update AREE set [ID_PARENT]=0 where [ID_PARENT] is null
update AREE set [AREA]='' where [AREA] is null
if exists(select * from sysindexes where name = 'CUR_AREEID_AREA') alter table AREE drop constraint CUR_AREEID_AREA
alter table AREE alter column [AREA] nvarchar(100) not null
alter table AREE alter column [ID_AREA] int not null
alter table AREE add constraint [DEFVAL_AREEID_PARENT] default 0 for [ID_PARENT]
alter table AREE add constraint [DEFVAL_AREEAREA] default '' for [AREA]
if not exists(select * from sys.indexes where object_id = object_id('AREE') and name='CUR_AREEID_AREA') alter table AREE add constraint CUR_AREEID_AREA primary key ([ID_AREA] asc)
create table AUTOSPOOL_PROFILI ([IDRec] int not null identity(1, 1), [COMPUTER] nvarchar(255), [COD_TIPODOC] int, [FILEMASK] nvarchar(255), [ATTIVO] bit, [SOST_DOC] bit, [FIND_SUBFOLDER] bit, [SUBFOLDER_LEVEL] int, [ETICHETTA] nvarchar(60), [ARCH_DEST] nvarchar(16), [REFRESH_DOC] bit, [SOST_NO_FILE2] bit, [REFRESH_ADD] bit, [ONLY_LINKS] bit, [COPY_FILES] bit, [COPY_PATH] nvarchar(255), [DICT_CONV] bit, [LINKS_REPLACE] bit)
update AUTOSPOOL_PROFILI set [ATTIVO]=0 where [ATTIVO] is null
update AUTOSPOOL_PROFILI set [SOST_DOC]=0 where [SOST_DOC] is null
update AUTOSPOOL_PROFILI set [FIND_SUBFOLDER]=0 where [FIND_SUBFOLDER] is null
update AUTOSPOOL_PROFILI set [SUBFOLDER_LEVEL]=0 where [SUBFOLDER_LEVEL] is null
update AUTOSPOOL_PROFILI set [REFRESH_DOC]=0 where [REFRESH_DOC] is null
update AUTOSPOOL_PROFILI set [SOST_NO_FILE2]=0 where [SOST_NO_FILE2] is null
update AUTOSPOOL_PROFILI set [REFRESH_ADD]=0 where [REFRESH_ADD] is null
update AUTOSPOOL_PROFILI set [ONLY_LINKS]=0 where [ONLY_LINKS] is null
update AUTOSPOOL_PROFILI set [COPY_FILES]=0 where [COPY_FILES] is null
update AUTOSPOOL_PROFILI set [DICT_CONV]=0 where [DICT_CONV] is null
update AUTOSPOOL_PROFILI set [LINKS_REPLACE]=0 where [LINKS_REPLACE] is null
if exists(select * from sysindexes where name = 'CUR_AUTOSPOOL_PROFILIPrimaryKey') alter table AUTOSPOOL_PROFILI drop constraint CUR_AUTOSPOOL_PROFILIPrimaryKey
alter table AUTOSPOOL_PROFILI alter column [IDRec] int not null
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIATTIVO] default 0 for [ATTIVO]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILISOST_DOC] default 0 for [SOST_DOC]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIFIND_SUBFOLDER] default 0 for [FIND_SUBFOLDER]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILISUBFOLDER_LEVEL] default 0 for [SUBFOLDER_LEVEL]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIREFRESH_DOC] default 0 for [REFRESH_DOC]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILISOST_NO_FILE2] default 0 for [SOST_NO_FILE2]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIREFRESH_ADD] default 0 for [REFRESH_ADD]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIONLY_LINKS] default 0 for [ONLY_LINKS]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILICOPY_FILES] default 0 for [COPY_FILES]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILIDICT_CONV] default 0 for [DICT_CONV]
alter table AUTOSPOOL_PROFILI add constraint [DEFVAL_AUTOSPOOL_PROFILILINKS_REPLACE] default 0 for [LINKS_REPLACE]
if not exists(select * from sys.indexes where object_id = object_id('AUTOSPOOL_PROFILI') and name='CUR_AUTOSPOOL_PROFILIPrimaryKey') alter table AUTOSPOOL_PROFILI add constraint CUR_AUTOSPOOL_PROFILIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('AUTOSPOOL_PROFILI') and name='COMPUTER') create index COMPUTER on AUTOSPOOL_PROFILI ([COMPUTER] asc)
if not exists(select * from sys.indexes where object_id = object_id('AUTOSPOOL_PROFILI') and name='TIPO_DOC') create index TIPO_DOC on AUTOSPOOL_PROFILI ([COMPUTER] asc, [COD_TIPODOC] asc)
create table CampiElab ([IDCampi] int not null identity(1, 1), [IDProc] int, [CampoOr] nvarchar(50), [CampoDest] nvarchar(50), [Numeri] nvarchar(50), [Tipo] nvarchar(15))
update CampiElab set [IDProc]=0 where [IDProc] is null
if exists(select * from sysindexes where name = 'CUR_CampiElabPrimaryKey') alter table CampiElab drop constraint CUR_CampiElabPrimaryKey
alter table CampiElab alter column [IDCampi] int not null
alter table CampiElab add constraint [DEFVAL_CampiElabIDProc] default 0 for [IDProc]
if not exists(select * from sys.indexes where object_id = object_id('CampiElab') and name='CUR_CampiElabPrimaryKey') alter table CampiElab add constraint CUR_CampiElabPrimaryKey primary key ([IDCampi] asc)
if not exists(select * from sys.indexes where object_id = object_id('CampiElab') and name='IDCampi') create index IDCampi on CampiElab ([IDCampi] asc)
if not exists(select * from sys.indexes where object_id = object_id('CampiElab') and name='IDProc') create index IDProc on CampiElab ([IDProc] asc)
create table CLASSI ([ID_CLASSE] int not null identity(1, 1), [CLASSE] nvarchar(20) not null)
update CLASSI set [CLASSE]='' where [CLASSE] is null
if exists(select * from sysindexes where name = 'CUR_CLASSIDB_CLASSE') alter table CLASSI drop constraint CUR_CLASSIDB_CLASSE
alter table CLASSI alter column [CLASSE] nvarchar(20) not null
alter table CLASSI alter column [ID_CLASSE] int not null
alter table CLASSI add constraint [DEFVAL_CLASSICLASSE] default '' for [CLASSE]
if not exists(select * from sys.indexes where object_id = object_id('CLASSI') and name='CUR_CLASSIDB_CLASSE') alter table CLASSI add constraint CUR_CLASSIDB_CLASSE primary key ([ID_CLASSE] asc)
create table Correlazioni ([IDCorrelazioni] int not null identity(1, 1), [IDDefSucc] int, [LEFT] int, [TOP] int, [RIGHT] int, [BOTTOM] int, [Valore] nvarchar(50), [Azione] nvarchar(50), [Campo_da_Compilare] nvarchar(50), [Tipo_Dato] bit, [Penna] bit, [ContatorePg] bit)
update Correlazioni set [IDDefSucc]=0 where [IDDefSucc] is null
update Correlazioni set [Tipo_Dato]=0 where [Tipo_Dato] is null
update Correlazioni set [Penna]=0 where [Penna] is null
update Correlazioni set [ContatorePg]=0 where [ContatorePg] is null
if exists(select * from sysindexes where name = 'CUR_CorrelazioniPrimaryKey') alter table Correlazioni drop constraint CUR_CorrelazioniPrimaryKey
alter table Correlazioni alter column [IDCorrelazioni] int not null
alter table Correlazioni add constraint [DEFVAL_CorrelazioniIDDefSucc] default 0 for [IDDefSucc]
alter table Correlazioni add constraint [DEFVAL_CorrelazioniTipo_Dato] default 0 for [Tipo_Dato]
alter table Correlazioni add constraint [DEFVAL_CorrelazioniPenna] default 0 for [Penna]
alter table Correlazioni add constraint [DEFVAL_CorrelazioniContatorePg] default 0 for [ContatorePg]
if not exists(select * from sys.indexes where object_id = object_id('Correlazioni') and name='CUR_CorrelazioniPrimaryKey') alter table Correlazioni add constraint CUR_CorrelazioniPrimaryKey primary key ([IDCorrelazioni] asc)
if not exists(select * from sys.indexes where object_id = object_id('Correlazioni') and name='IDCorrelazioni') create index IDCorrelazioni on Correlazioni ([IDCorrelazioni] asc)
if not exists(select * from sys.indexes where object_id = object_id('Correlazioni') and name='IDDefSucc') create index IDDefSucc on Correlazioni ([IDDefSucc] asc)
create table DB_FOLIATRA_ID ([IDRec] int not null identity(1, 1), [FOLIATRA_ID] nvarchar(37) not null, [FOLIATRA_PWD] nvarchar(max), [FOLIATRA_NOTE] nvarchar(max), [FOLIATRA_ATTIVO] smallint not null, [FOLIATRA_GEST] int)
update DB_FOLIATRA_ID set [FOLIATRA_ID]='' where [FOLIATRA_ID] is null
update DB_FOLIATRA_ID set [FOLIATRA_GEST]=0 where [FOLIATRA_GEST] is null
if exists(select * from sysindexes where name = 'CUR_DB_FOLIATRA_IDPrimaryKey') alter table DB_FOLIATRA_ID drop constraint CUR_DB_FOLIATRA_IDPrimaryKey
alter table DB_FOLIATRA_ID alter column [FOLIATRA_ID] nvarchar(37) not null
alter table DB_FOLIATRA_ID alter column [IDRec] int not null
alter table DB_FOLIATRA_ID add constraint [DEFVAL_DB_FOLIATRA_IDFOLIATRA_ID] default '' for [FOLIATRA_ID]
alter table DB_FOLIATRA_ID add constraint [DEFVAL_DB_FOLIATRA_IDFOLIATRA_GEST] default 0 for [FOLIATRA_GEST]
if not exists(select * from sys.indexes where object_id = object_id('DB_FOLIATRA_ID') and name='CUR_DB_FOLIATRA_IDPrimaryKey') alter table DB_FOLIATRA_ID add constraint CUR_DB_FOLIATRA_IDPrimaryKey primary key ([IDRec] asc)
create table DB_FOLIATRA_STATO ([IDRec] int not null identity(1, 1), [FOLIATRA_ID] nvarchar(37), [FOLIATRA_SYS_SERIALE] nvarchar(16) not null, [FOLIATRA_SYS_RECORD] int not null, [FOLIATRA_STATO] int not null, [FOLIATRA_DATA_STATO] datetime, [FOLIATRA_TAG_CODICE] nvarchar(64), [FOLIATRA_TAG_DESCRIZIONE] nvarchar(255), [FOLIATRA_UTENTE] nvarchar(255), [FOLIATRA_DELETE] bit not null, [FOLIATRA_OCR_STATO] int not null, [FOLIATRA_OCR_PRIORITA] int not null, [FOLIATRA_OCR_CLEAN] bit not null)
update DB_FOLIATRA_STATO set [FOLIATRA_SYS_SERIALE]='' where [FOLIATRA_SYS_SERIALE] is null
update DB_FOLIATRA_STATO set [FOLIATRA_STATO]=0 where [FOLIATRA_STATO] is null
update DB_FOLIATRA_STATO set [FOLIATRA_DELETE]=0 where [FOLIATRA_DELETE] is null
update DB_FOLIATRA_STATO set [FOLIATRA_OCR_STATO]=0 where [FOLIATRA_OCR_STATO] is null
update DB_FOLIATRA_STATO set [FOLIATRA_OCR_PRIORITA]=0 where [FOLIATRA_OCR_PRIORITA] is null
update DB_FOLIATRA_STATO set [FOLIATRA_OCR_CLEAN]=0 where [FOLIATRA_OCR_CLEAN] is null
if exists(select * from sysindexes where name = 'CUR_DB_FOLIATRA_STATOIDRec') alter table DB_FOLIATRA_STATO drop constraint CUR_DB_FOLIATRA_STATOIDRec
alter table DB_FOLIATRA_STATO alter column [FOLIATRA_SYS_SERIALE] nvarchar(16) not null
alter table DB_FOLIATRA_STATO alter column [IDRec] int not null
alter table DB_FOLIATRA_STATO alter column [FOLIATRA_SYS_SERIALE] nvarchar(16) not null
alter table DB_FOLIATRA_STATO alter column [FOLIATRA_SYS_RECORD] int not null
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_SYS_SERIALE] default '' for [FOLIATRA_SYS_SERIALE]
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_STATO] default 0 for [FOLIATRA_STATO]
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_DELETE] default 0 for [FOLIATRA_DELETE]
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_OCR_STATO] default 0 for [FOLIATRA_OCR_STATO]
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_OCR_PRIORITA] default 0 for [FOLIATRA_OCR_PRIORITA]
alter table DB_FOLIATRA_STATO add constraint [DEFVAL_DB_FOLIATRA_STATOFOLIATRA_OCR_CLEAN] default 0 for [FOLIATRA_OCR_CLEAN]
if not exists(select * from sys.indexes where object_id = object_id('DB_FOLIATRA_STATO') and name='CUR_DB_FOLIATRA_STATOIDRec') alter table DB_FOLIATRA_STATO add constraint CUR_DB_FOLIATRA_STATOIDRec primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_FOLIATRA_STATO') and name='SYS_SERIALESYS_RECORD') create unique index SYS_SERIALESYS_RECORD on DB_FOLIATRA_STATO ([FOLIATRA_SYS_SERIALE] asc, [FOLIATRA_SYS_RECORD] asc)
create table DB_DIZIONARIO ([ID_DIZIONARIO] nvarchar(25) not null, [DIZIONARIO] nvarchar(50) not null, [NOME_TABELLA] nvarchar(50) not null)
update DB_DIZIONARIO set [ID_DIZIONARIO]='' where [ID_DIZIONARIO] is null
update DB_DIZIONARIO set [DIZIONARIO]='' where [DIZIONARIO] is null
update DB_DIZIONARIO set [NOME_TABELLA]='' where [NOME_TABELLA] is null
if exists(select * from sysindexes where name = 'CUR_DB_DIZIONARIODB_DIZIONARIO') alter table DB_DIZIONARIO drop constraint CUR_DB_DIZIONARIODB_DIZIONARIO
alter table DB_DIZIONARIO alter column [ID_DIZIONARIO] nvarchar(25) not null
alter table DB_DIZIONARIO alter column [DIZIONARIO] nvarchar(50) not null
alter table DB_DIZIONARIO alter column [NOME_TABELLA] nvarchar(50) not null
alter table DB_DIZIONARIO alter column [ID_DIZIONARIO] nvarchar(25) not null
alter table DB_DIZIONARIO add constraint [DEFVAL_DB_DIZIONARIOID_DIZIONARIO] default '' for [ID_DIZIONARIO]
alter table DB_DIZIONARIO add constraint [DEFVAL_DB_DIZIONARIODIZIONARIO] default '' for [DIZIONARIO]
alter table DB_DIZIONARIO add constraint [DEFVAL_DB_DIZIONARIONOME_TABELLA] default '' for [NOME_TABELLA]
if not exists(select * from sys.indexes where object_id = object_id('DB_DIZIONARIO') and name='CUR_DB_DIZIONARIODB_DIZIONARIO') alter table DB_DIZIONARIO add constraint CUR_DB_DIZIONARIODB_DIZIONARIO primary key ([ID_DIZIONARIO] asc)
create table DB_DIZIONARIO_LINK ([ID_DIZIONARIO] nvarchar(25) not null, [SYS_SERIALE] nvarchar(16) not null, [FIELD] nvarchar(64) not null, [FIELD_TO_FIND] nvarchar(64), [FIELD_COMPILE_VAL] nvarchar(64), [FIELD_COMPILE_DES] nvarchar(64), [PROG_DIZ] int not null identity(1, 1))
update DB_DIZIONARIO_LINK set [ID_DIZIONARIO]='' where [ID_DIZIONARIO] is null
update DB_DIZIONARIO_LINK set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_DIZIONARIO_LINK set [FIELD]='' where [FIELD] is null
if exists(select * from sysindexes where name = 'CUR_DB_DIZIONARIO_LINKPrimaryKey') alter table DB_DIZIONARIO_LINK drop constraint CUR_DB_DIZIONARIO_LINKPrimaryKey
alter table DB_DIZIONARIO_LINK alter column [ID_DIZIONARIO] nvarchar(25) not null
alter table DB_DIZIONARIO_LINK alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_DIZIONARIO_LINK alter column [FIELD] nvarchar(64) not null
alter table DB_DIZIONARIO_LINK alter column [PROG_DIZ] int not null
alter table DB_DIZIONARIO_LINK add constraint [DEFVAL_DB_DIZIONARIO_LINKID_DIZIONARIO] default '' for [ID_DIZIONARIO]
alter table DB_DIZIONARIO_LINK add constraint [DEFVAL_DB_DIZIONARIO_LINKSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_DIZIONARIO_LINK add constraint [DEFVAL_DB_DIZIONARIO_LINKFIELD] default '' for [FIELD]
if not exists(select * from sys.indexes where object_id = object_id('DB_DIZIONARIO_LINK') and name='CUR_DB_DIZIONARIO_LINKPrimaryKey') alter table DB_DIZIONARIO_LINK add constraint CUR_DB_DIZIONARIO_LINKPrimaryKey primary key ([PROG_DIZ] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_DIZIONARIO_LINK') and name='DB_DIZIONARIO_LINK') create index DB_DIZIONARIO_LINK on DB_DIZIONARIO_LINK ([SYS_SERIALE] asc, [FIELD] asc)
create table DB_DOC_LINK ([DB_PAR_SERIALE] nvarchar(16) not null, [DB_PAR_RECORD] int not null, [DB_SON_SERIALE] nvarchar(16) not null, [DB_SON_RECORD] int not null)
update DB_DOC_LINK set [DB_PAR_SERIALE]='' where [DB_PAR_SERIALE] is null
update DB_DOC_LINK set [DB_PAR_RECORD]=0 where [DB_PAR_RECORD] is null
update DB_DOC_LINK set [DB_SON_SERIALE]='' where [DB_SON_SERIALE] is null
update DB_DOC_LINK set [DB_SON_RECORD]=0 where [DB_SON_RECORD] is null
if exists(select * from sysindexes where name = 'CUR_DB_DOC_LINKDOC_LINK') alter table DB_DOC_LINK drop constraint CUR_DB_DOC_LINKDOC_LINK
alter table DB_DOC_LINK alter column [DB_PAR_SERIALE] nvarchar(16) not null
alter table DB_DOC_LINK alter column [DB_SON_SERIALE] nvarchar(16) not null
alter table DB_DOC_LINK alter column [DB_PAR_SERIALE] nvarchar(16) not null
alter table DB_DOC_LINK alter column [DB_PAR_RECORD] int not null
alter table DB_DOC_LINK alter column [DB_SON_SERIALE] nvarchar(16) not null
alter table DB_DOC_LINK alter column [DB_SON_RECORD] int not null
alter table DB_DOC_LINK add constraint [DEFVAL_DB_DOC_LINKDB_PAR_SERIALE] default '' for [DB_PAR_SERIALE]
alter table DB_DOC_LINK add constraint [DEFVAL_DB_DOC_LINKDB_PAR_RECORD] default 0 for [DB_PAR_RECORD]
alter table DB_DOC_LINK add constraint [DEFVAL_DB_DOC_LINKDB_SON_SERIALE] default '' for [DB_SON_SERIALE]
alter table DB_DOC_LINK add constraint [DEFVAL_DB_DOC_LINKDB_SON_RECORD] default 0 for [DB_SON_RECORD]
if not exists(select * from sys.indexes where object_id = object_id('DB_DOC_LINK') and name='CUR_DB_DOC_LINKDOC_LINK') alter table DB_DOC_LINK add constraint CUR_DB_DOC_LINKDOC_LINK primary key ([DB_PAR_SERIALE] asc, [DB_PAR_RECORD] asc, [DB_SON_SERIALE] asc, [DB_SON_RECORD] asc)
create table DB_DOSSIER_ASSOC ([SYS_SERIALE_DOS] nvarchar(16), [SYS_SERIALE_ARC] nvarchar(16), [SUBDOSSIER_UPDATE] bit, [SUBDOSSIER_CREATE] bit)
update DB_DOSSIER_ASSOC set [SUBDOSSIER_UPDATE]=0 where [SUBDOSSIER_UPDATE] is null
update DB_DOSSIER_ASSOC set [SUBDOSSIER_CREATE]=0 where [SUBDOSSIER_CREATE] is null
if exists(select * from sysindexes where name = 'CUR_DB_DOSSIER_ASSOCPrimaryKey') alter table DB_DOSSIER_ASSOC drop constraint CUR_DB_DOSSIER_ASSOCPrimaryKey
alter table DB_DOSSIER_ASSOC alter column [SYS_SERIALE_DOS] nvarchar(16) not null
alter table DB_DOSSIER_ASSOC alter column [SYS_SERIALE_ARC] nvarchar(16) not null
alter table DB_DOSSIER_ASSOC add constraint [DEFVAL_DB_DOSSIER_ASSOCSUBDOSSIER_UPDATE] default 0 for [SUBDOSSIER_UPDATE]
alter table DB_DOSSIER_ASSOC add constraint [DEFVAL_DB_DOSSIER_ASSOCSUBDOSSIER_CREATE] default 0 for [SUBDOSSIER_CREATE]
if not exists(select * from sys.indexes where object_id = object_id('DB_DOSSIER_ASSOC') and name='CUR_DB_DOSSIER_ASSOCPrimaryKey') alter table DB_DOSSIER_ASSOC add constraint CUR_DB_DOSSIER_ASSOCPrimaryKey primary key ([SYS_SERIALE_DOS] asc, [SYS_SERIALE_ARC] asc)
create table DB_DOSSIER_LINK ([SYS_DS_SERIALE] nvarchar(16) not null, [SYS_DS_RECORD] int, [SYS_SERIALE] nvarchar(16) not null, [SYS_RECORD] int not null)
update DB_DOSSIER_LINK set [SYS_DS_SERIALE]='' where [SYS_DS_SERIALE] is null
update DB_DOSSIER_LINK set [SYS_DS_RECORD]=0 where [SYS_DS_RECORD] is null
update DB_DOSSIER_LINK set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_DOSSIER_LINK set [SYS_RECORD]=0 where [SYS_RECORD] is null
if exists(select * from sysindexes where name = 'CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK') alter table DB_DOSSIER_LINK drop constraint CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK
alter table DB_DOSSIER_LINK alter column [SYS_DS_SERIALE] nvarchar(16) not null
alter table DB_DOSSIER_LINK alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_DOSSIER_LINK alter column [SYS_DS_SERIALE] nvarchar(16) not null
alter table DB_DOSSIER_LINK alter column [SYS_DS_RECORD] int not null
alter table DB_DOSSIER_LINK alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_DOSSIER_LINK alter column [SYS_RECORD] int not null
alter table DB_DOSSIER_LINK add constraint [DEFVAL_DB_DOSSIER_LINKSYS_DS_SERIALE] default '' for [SYS_DS_SERIALE]
alter table DB_DOSSIER_LINK add constraint [DEFVAL_DB_DOSSIER_LINKSYS_DS_RECORD] default 0 for [SYS_DS_RECORD]
alter table DB_DOSSIER_LINK add constraint [DEFVAL_DB_DOSSIER_LINKSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_DOSSIER_LINK add constraint [DEFVAL_DB_DOSSIER_LINKSYS_RECORD] default 0 for [SYS_RECORD]
if not exists(select * from sys.indexes where object_id = object_id('DB_DOSSIER_LINK') and name='CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK') alter table DB_DOSSIER_LINK add constraint CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK primary key ([SYS_DS_SERIALE] asc, [SYS_DS_RECORD] asc, [SYS_SERIALE] asc, [SYS_RECORD] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_DOSSIER_LINK') and name='DB_DOSSIER_LINKSYS_SERIALE') create index DB_DOSSIER_LINKSYS_SERIALE on DB_DOSSIER_LINK ([SYS_SERIALE] asc)
create table DB_DOSSIER_PERM ([SYS_SERIALE] nvarchar(16), [ID_User] int, [DossierOpen] bit, [DossierManage] bit, [SubdossierManage] bit, [SubdossierInsert] bit, [DocRemove] bit)
update DB_DOSSIER_PERM set [ID_User]=0 where [ID_User] is null
update DB_DOSSIER_PERM set [DossierOpen]=0 where [DossierOpen] is null
update DB_DOSSIER_PERM set [DossierManage]=0 where [DossierManage] is null
update DB_DOSSIER_PERM set [SubdossierManage]=0 where [SubdossierManage] is null
update DB_DOSSIER_PERM set [SubdossierInsert]=0 where [SubdossierInsert] is null
update DB_DOSSIER_PERM set [DocRemove]=0 where [DocRemove] is null
if exists(select * from sysindexes where name = 'CUR_DB_DOSSIER_PERMPrimaryKey') alter table DB_DOSSIER_PERM drop constraint CUR_DB_DOSSIER_PERMPrimaryKey
alter table DB_DOSSIER_PERM alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_DOSSIER_PERM alter column [ID_User] int not null
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMID_User] default 0 for [ID_User]
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMDossierOpen] default 0 for [DossierOpen]
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMDossierManage] default 0 for [DossierManage]
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMSubdossierManage] default 0 for [SubdossierManage]
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMSubdossierInsert] default 0 for [SubdossierInsert]
alter table DB_DOSSIER_PERM add constraint [DEFVAL_DB_DOSSIER_PERMDocRemove] default 0 for [DocRemove]
if not exists(select * from sys.indexes where object_id = object_id('DB_DOSSIER_PERM') and name='CUR_DB_DOSSIER_PERMPrimaryKey') alter table DB_DOSSIER_PERM add constraint CUR_DB_DOSSIER_PERMPrimaryKey primary key ([SYS_SERIALE] asc, [ID_User] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_DOSSIER_PERM') and name='ID_Utente') create index ID_Utente on DB_DOSSIER_PERM ([ID_User] asc)
create table DB_ELENCO ([SYS_SERIALE] nvarchar(16) not null, [ID_AREA] int, [ID_CLASSE] int, [ID_UTENTE] int, [CREAZIONE] datetime, [ARCHIVIO] nvarchar(100), [SYS_DOSSIER] bit, [SYS_AUTOUPD] bit, [SYS_VERSIONE] int, [SYS_PATH_DOCS] nvarchar(255), [SYS_READONLY] bit, [SYS_LOCKED] bit, [SYS_LOCKED_NOTE] nvarchar(255), [SYS_PROPERTY] nvarchar(max), [SYS_AIPA_RESTRICT] bit, [SYS_AIPA_USER_ID] int, [SYS_AIPA_SIGN_ALL_FILES] bit, [SYS_AIPA_FILES_OK] nvarchar(max), [SYS_AIPA_FILES_KO] nvarchar(max), [SYS_AIPA_LOCATION] int, [SYS_INDEX_DESCR] nvarchar(255), [SYS_DB_SECRET] bit, [SYS_USER_SECRET] bit, [SYS_AUTONOTIFY_SECRET] bit, [SYS_QUERY] bit, [SYS_FIRMA_CONT] bit, [SYS_FILTRO_INT] bit, [MAIL_DA] nvarchar(255), [MAIL_DA_ADDR] nvarchar(255), [MAIL_A] nvarchar(255), [MAIL_A_ADDR] nvarchar(255), [MAIL_OGGETTO] nvarchar(255), [MAIL_DATA] nvarchar(255), [MAIL_CC] nvarchar(255), [MAIL_PROTO_DATA] nvarchar(255), [SYS_WEB] bit, [ANNUALE] bit, [ANNO] smallint, [PIVA] nvarchar(16), [CODFIS] nvarchar(16), [TIPO_ARCH] int, [SYS_REGISTRO] int, [SYS_RESPCONS] int, [SYS_CODLUOGO] int, [SYS_INTTRASM] int, [SYS_IMPEGNONUM] int, [SYS_IMPEGNODATA] datetime, [SYS_IMPSOGGETTOOBBL] int, [FLAG_RESPLOOKUP] bit, [PROTOCOLLO] bit, [ANNO_SUCC] smallint, [SERIALE_SUCC] nvarchar(16), [FLAG_FOLIATRA] bit, [ID_FOLIATRA] nvarchar(37))
update DB_ELENCO set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_ELENCO set [ID_AREA]=0 where [ID_AREA] is null
update DB_ELENCO set [ID_CLASSE]=0 where [ID_CLASSE] is null
update DB_ELENCO set [ID_UTENTE]=0 where [ID_UTENTE] is null
update DB_ELENCO set [SYS_DOSSIER]=0 where [SYS_DOSSIER] is null
update DB_ELENCO set [SYS_AUTOUPD]=0 where [SYS_AUTOUPD] is null
update DB_ELENCO set [SYS_VERSIONE]=0 where [SYS_VERSIONE] is null
update DB_ELENCO set [SYS_READONLY]=0 where [SYS_READONLY] is null
update DB_ELENCO set [SYS_LOCKED]=0 where [SYS_LOCKED] is null
update DB_ELENCO set [SYS_AIPA_RESTRICT]=0 where [SYS_AIPA_RESTRICT] is null
update DB_ELENCO set [SYS_AIPA_USER_ID]=0 where [SYS_AIPA_USER_ID] is null
update DB_ELENCO set [SYS_AIPA_SIGN_ALL_FILES]=0 where [SYS_AIPA_SIGN_ALL_FILES] is null
update DB_ELENCO set [SYS_AIPA_LOCATION]=1 where [SYS_AIPA_LOCATION] is null
update DB_ELENCO set [SYS_DB_SECRET]=0 where [SYS_DB_SECRET] is null
update DB_ELENCO set [SYS_USER_SECRET]=0 where [SYS_USER_SECRET] is null
update DB_ELENCO set [SYS_AUTONOTIFY_SECRET]=0 where [SYS_AUTONOTIFY_SECRET] is null
update DB_ELENCO set [SYS_QUERY]=0 where [SYS_QUERY] is null
update DB_ELENCO set [SYS_FIRMA_CONT]=0 where [SYS_FIRMA_CONT] is null
update DB_ELENCO set [SYS_FILTRO_INT]=0 where [SYS_FILTRO_INT] is null
update DB_ELENCO set [SYS_WEB]=0 where [SYS_WEB] is null
update DB_ELENCO set [ANNUALE]=0 where [ANNUALE] is null
update DB_ELENCO set [ANNO]=0 where [ANNO] is null
update DB_ELENCO set [TIPO_ARCH]=0 where [TIPO_ARCH] is null
update DB_ELENCO set [SYS_REGISTRO]=0 where [SYS_REGISTRO] is null
update DB_ELENCO set [SYS_RESPCONS]=0 where [SYS_RESPCONS] is null
update DB_ELENCO set [SYS_INTTRASM]=0 where [SYS_INTTRASM] is null
update DB_ELENCO set [SYS_IMPEGNONUM]=1 where [SYS_IMPEGNONUM] is null
update DB_ELENCO set [SYS_IMPSOGGETTOOBBL]=0 where [SYS_IMPSOGGETTOOBBL] is null
update DB_ELENCO set [FLAG_RESPLOOKUP]=0 where [FLAG_RESPLOOKUP] is null
update DB_ELENCO set [PROTOCOLLO]=0 where [PROTOCOLLO] is null
update DB_ELENCO set [ANNO_SUCC]=0 where [ANNO_SUCC] is null
update DB_ELENCO set [FLAG_FOLIATRA]=0 where [FLAG_FOLIATRA] is null
if exists(select * from sysindexes where name = 'CUR_DB_ELENCOSYS_SERIALE') alter table DB_ELENCO drop constraint CUR_DB_ELENCOSYS_SERIALE
alter table DB_ELENCO alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOID_AREA] default 0 for [ID_AREA]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOID_CLASSE] default 0 for [ID_CLASSE]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOID_UTENTE] default 0 for [ID_UTENTE]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_DOSSIER] default 0 for [SYS_DOSSIER]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AUTOUPD] default 0 for [SYS_AUTOUPD]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_VERSIONE] default 0 for [SYS_VERSIONE]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_READONLY] default 0 for [SYS_READONLY]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_LOCKED] default 0 for [SYS_LOCKED]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AIPA_RESTRICT] default 0 for [SYS_AIPA_RESTRICT]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AIPA_USER_ID] default 0 for [SYS_AIPA_USER_ID]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AIPA_SIGN_ALL_FILES] default 0 for [SYS_AIPA_SIGN_ALL_FILES]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AIPA_LOCATION] default 1 for [SYS_AIPA_LOCATION]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_DB_SECRET] default 0 for [SYS_DB_SECRET]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_USER_SECRET] default 0 for [SYS_USER_SECRET]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_AUTONOTIFY_SECRET] default 0 for [SYS_AUTONOTIFY_SECRET]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_QUERY] default 0 for [SYS_QUERY]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_FIRMA_CONT] default 0 for [SYS_FIRMA_CONT]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_FILTRO_INT] default 0 for [SYS_FILTRO_INT]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_WEB] default 0 for [SYS_WEB]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOANNUALE] default 0 for [ANNUALE]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOANNO] default 0 for [ANNO]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOTIPO_ARCH] default 0 for [TIPO_ARCH]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_REGISTRO] default 0 for [SYS_REGISTRO]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_RESPCONS] default 0 for [SYS_RESPCONS]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_INTTRASM] default 0 for [SYS_INTTRASM]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_IMPEGNONUM] default 1 for [SYS_IMPEGNONUM]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOSYS_IMPSOGGETTOOBBL] default 0 for [SYS_IMPSOGGETTOOBBL]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOFLAG_RESPLOOKUP] default 0 for [FLAG_RESPLOOKUP]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOPROTOCOLLO] default 0 for [PROTOCOLLO]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOANNO_SUCC] default 0 for [ANNO_SUCC]
alter table DB_ELENCO add constraint [DEFVAL_DB_ELENCOFLAG_FOLIATRA] default 0 for [FLAG_FOLIATRA]
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO') and name='CUR_DB_ELENCOSYS_SERIALE') alter table DB_ELENCO add constraint CUR_DB_ELENCOSYS_SERIALE primary key ([SYS_SERIALE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO') and name='DB_ELENCOID_AREA') create index DB_ELENCOID_AREA on DB_ELENCO ([ID_AREA] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO') and name='ID_FOLIATRA') create index ID_FOLIATRA on DB_ELENCO ([ID_FOLIATRA] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO') and name='ID_CLASSE') create index ID_CLASSE on DB_ELENCO ([ID_CLASSE] asc)
create table DB_ELENCO_PC ([COMPUTER] nvarchar(255) not null, [SYS_SERIALE] nvarchar(16) not null, [SYS_PATH_DOCS] nvarchar(255) not null)
update DB_ELENCO_PC set [COMPUTER]='' where [COMPUTER] is null
update DB_ELENCO_PC set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_ELENCO_PC set [SYS_PATH_DOCS]='' where [SYS_PATH_DOCS] is null
if exists(select * from sysindexes where name = 'CUR_DB_ELENCO_PCPATH_LOCALE') alter table DB_ELENCO_PC drop constraint CUR_DB_ELENCO_PCPATH_LOCALE
alter table DB_ELENCO_PC alter column [COMPUTER] nvarchar(255) not null
alter table DB_ELENCO_PC alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO_PC alter column [SYS_PATH_DOCS] nvarchar(255) not null
alter table DB_ELENCO_PC alter column [COMPUTER] nvarchar(255) not null
alter table DB_ELENCO_PC alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO_PC add constraint [DEFVAL_DB_ELENCO_PCCOMPUTER] default '' for [COMPUTER]
alter table DB_ELENCO_PC add constraint [DEFVAL_DB_ELENCO_PCSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_ELENCO_PC add constraint [DEFVAL_DB_ELENCO_PCSYS_PATH_DOCS] default '' for [SYS_PATH_DOCS]
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO_PC') and name='CUR_DB_ELENCO_PCPATH_LOCALE') alter table DB_ELENCO_PC add constraint CUR_DB_ELENCO_PCPATH_LOCALE primary key ([COMPUTER] asc, [SYS_SERIALE] asc)
create table DB_ELENCO_UTENTI_CNIPA ([SYS_SERIALE] nvarchar(16), [ID_UTENTE] int)
if exists(select * from sysindexes where name = 'CUR_DB_ELENCO_UTENTI_CNIPAPrimario') alter table DB_ELENCO_UTENTI_CNIPA drop constraint CUR_DB_ELENCO_UTENTI_CNIPAPrimario
alter table DB_ELENCO_UTENTI_CNIPA alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO_UTENTI_CNIPA alter column [ID_UTENTE] int not null
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='CUR_DB_ELENCO_UTENTI_CNIPAPrimario') alter table DB_ELENCO_UTENTI_CNIPA add constraint CUR_DB_ELENCO_UTENTI_CNIPAPrimario primary key ([SYS_SERIALE] asc, [ID_UTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='ID_UTENTE') create index ID_UTENTE on DB_ELENCO_UTENTI_CNIPA ([ID_UTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='SYS_SERIALE') create index SYS_SERIALE on DB_ELENCO_UTENTI_CNIPA ([SYS_SERIALE] asc)
create table DB_PERMESSI ([SYS_SERIALE] nvarchar(16), [ID_PERMESSO] int not null)
if exists(select * from sysindexes where name = 'CUR_DB_PERMESSIDB_PERMESSO') alter table DB_PERMESSI drop constraint CUR_DB_PERMESSIDB_PERMESSO
alter table DB_PERMESSI alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_PERMESSI alter column [ID_PERMESSO] int not null
if not exists(select * from sys.indexes where object_id = object_id('DB_PERMESSI') and name='CUR_DB_PERMESSIDB_PERMESSO') alter table DB_PERMESSI add constraint CUR_DB_PERMESSIDB_PERMESSO primary key ([SYS_SERIALE] asc, [ID_PERMESSO] asc)
create table DB_QUERY ([ID_QUERY] int not null identity(1, 1), [QUERY] nvarchar(100), [SYS_QUERY] nvarchar(max), [SYS_SERIALE] nvarchar(255), [SYS_ATTIVO] bit, [SYS_GENERAL] bit, [SYS_OR] bit, [ID_UTENTE] int, [TIPO_QUERY] int)
update DB_QUERY set [SYS_ATTIVO]=0 where [SYS_ATTIVO] is null
update DB_QUERY set [SYS_GENERAL]=0 where [SYS_GENERAL] is null
update DB_QUERY set [SYS_OR]=0 where [SYS_OR] is null
update DB_QUERY set [ID_UTENTE]=0 where [ID_UTENTE] is null
update DB_QUERY set [TIPO_QUERY]=0 where [TIPO_QUERY] is null
if exists(select * from sysindexes where name = 'CUR_DB_QUERYPrimaryKey') alter table DB_QUERY drop constraint CUR_DB_QUERYPrimaryKey
alter table DB_QUERY alter column [ID_QUERY] int not null
alter table DB_QUERY add constraint [DEFVAL_DB_QUERYSYS_ATTIVO] default 0 for [SYS_ATTIVO]
alter table DB_QUERY add constraint [DEFVAL_DB_QUERYSYS_GENERAL] default 0 for [SYS_GENERAL]
alter table DB_QUERY add constraint [DEFVAL_DB_QUERYSYS_OR] default 0 for [SYS_OR]
alter table DB_QUERY add constraint [DEFVAL_DB_QUERYID_UTENTE] default 0 for [ID_UTENTE]
alter table DB_QUERY add constraint [DEFVAL_DB_QUERYTIPO_QUERY] default 0 for [TIPO_QUERY]
if not exists(select * from sys.indexes where object_id = object_id('DB_QUERY') and name='CUR_DB_QUERYPrimaryKey') alter table DB_QUERY add constraint CUR_DB_QUERYPrimaryKey primary key ([ID_QUERY] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_QUERY') and name='ID_QUERY') create index ID_QUERY on DB_QUERY ([ID_QUERY] asc)
create table DB_QUERYUTENTI ([ID_QUERY] int, [ID_UTENTE] int, [SYS_SERIALE] nvarchar(16), [SYS_CUSTOM] bit)
update DB_QUERYUTENTI set [ID_QUERY]=0 where [ID_QUERY] is null
update DB_QUERYUTENTI set [ID_UTENTE]=0 where [ID_UTENTE] is null
update DB_QUERYUTENTI set [SYS_CUSTOM]=0 where [SYS_CUSTOM] is null
if exists(select * from sysindexes where name = 'CUR_DB_QUERYUTENTIPrimaryKey') alter table DB_QUERYUTENTI drop constraint CUR_DB_QUERYUTENTIPrimaryKey
alter table DB_QUERYUTENTI alter column [ID_QUERY] int not null
alter table DB_QUERYUTENTI alter column [ID_UTENTE] int not null
alter table DB_QUERYUTENTI alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_QUERYUTENTI add constraint [DEFVAL_DB_QUERYUTENTIID_QUERY] default 0 for [ID_QUERY]
alter table DB_QUERYUTENTI add constraint [DEFVAL_DB_QUERYUTENTIID_UTENTE] default 0 for [ID_UTENTE]
alter table DB_QUERYUTENTI add constraint [DEFVAL_DB_QUERYUTENTISYS_CUSTOM] default 0 for [SYS_CUSTOM]
if not exists(select * from sys.indexes where object_id = object_id('DB_QUERYUTENTI') and name='CUR_DB_QUERYUTENTIPrimaryKey') alter table DB_QUERYUTENTI add constraint CUR_DB_QUERYUTENTIPrimaryKey primary key ([ID_QUERY] asc, [ID_UTENTE] asc, [SYS_SERIALE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_QUERYUTENTI') and name='ID_QUERY') create index ID_QUERY on DB_QUERYUTENTI ([ID_QUERY] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_QUERYUTENTI') and name='ID_UTENTE') create index ID_UTENTE on DB_QUERYUTENTI ([ID_UTENTE] asc)
create table DB_SECRET_ADMINS ([SYS_SERIALE] nvarchar(16) not null, [ID_UTENTE] int)
update DB_SECRET_ADMINS set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_SECRET_ADMINS set [ID_UTENTE]=0 where [ID_UTENTE] is null
if exists(select * from sysindexes where name = 'CUR_DB_SECRET_ADMINSPrimaryKey') alter table DB_SECRET_ADMINS drop constraint CUR_DB_SECRET_ADMINSPrimaryKey
alter table DB_SECRET_ADMINS alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_SECRET_ADMINS alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_SECRET_ADMINS alter column [ID_UTENTE] int not null
alter table DB_SECRET_ADMINS add constraint [DEFVAL_DB_SECRET_ADMINSSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_SECRET_ADMINS add constraint [DEFVAL_DB_SECRET_ADMINSID_UTENTE] default 0 for [ID_UTENTE]
if not exists(select * from sys.indexes where object_id = object_id('DB_SECRET_ADMINS') and name='CUR_DB_SECRET_ADMINSPrimaryKey') alter table DB_SECRET_ADMINS add constraint CUR_DB_SECRET_ADMINSPrimaryKey primary key ([SYS_SERIALE] asc, [ID_UTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_SECRET_ADMINS') and name='ID_UTENTE') create index ID_UTENTE on DB_SECRET_ADMINS ([ID_UTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_SECRET_ADMINS') and name='SYS_SERIALE') create index SYS_SERIALE on DB_SECRET_ADMINS ([SYS_SERIALE] asc)
create table DB_STORICO_DOC ([SYS_SERIALE_SON] nvarchar(16), [SYS_RECORD_SON] int, [SYS_SERIALE_PAR] nvarchar(16), [SYS_RECORD_PAR] int, [WORKFILE] nvarchar(255), [ESPORTATO] bit, [NOTE_EXP] nvarchar(150), [REVISORE] nvarchar(50), [DATA_REVISIONE] datetime, [REVISIONATO] bit, [NOTE_REV] nvarchar(150), [CERTIFICATORE] nvarchar(50), [DATA_CERTIFICAZIONE] datetime, [CERTIFICATO] bit, [NOTE_CER] nvarchar(150), [CONTROLLORE] nvarchar(50), [DATA_CONTROLLO] datetime, [CONTROLLATO] bit, [NOTE_CON] nvarchar(150))
update DB_STORICO_DOC set [ESPORTATO]=0 where [ESPORTATO] is null
update DB_STORICO_DOC set [REVISIONATO]=0 where [REVISIONATO] is null
update DB_STORICO_DOC set [CERTIFICATO]=0 where [CERTIFICATO] is null
update DB_STORICO_DOC set [CONTROLLATO]=0 where [CONTROLLATO] is null
if exists(select * from sysindexes where name = 'CUR_DB_STORICO_DOCPrimaryKey') alter table DB_STORICO_DOC drop constraint CUR_DB_STORICO_DOCPrimaryKey
alter table DB_STORICO_DOC alter column [SYS_SERIALE_SON] nvarchar(16) not null
alter table DB_STORICO_DOC alter column [SYS_RECORD_SON] int not null
alter table DB_STORICO_DOC alter column [SYS_SERIALE_PAR] nvarchar(16) not null
alter table DB_STORICO_DOC alter column [SYS_RECORD_PAR] int not null
alter table DB_STORICO_DOC add constraint [DEFVAL_DB_STORICO_DOCESPORTATO] default 0 for [ESPORTATO]
alter table DB_STORICO_DOC add constraint [DEFVAL_DB_STORICO_DOCREVISIONATO] default 0 for [REVISIONATO]
alter table DB_STORICO_DOC add constraint [DEFVAL_DB_STORICO_DOCCERTIFICATO] default 0 for [CERTIFICATO]
alter table DB_STORICO_DOC add constraint [DEFVAL_DB_STORICO_DOCCONTROLLATO] default 0 for [CONTROLLATO]
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_DOC') and name='CUR_DB_STORICO_DOCPrimaryKey') alter table DB_STORICO_DOC add constraint CUR_DB_STORICO_DOCPrimaryKey primary key ([SYS_SERIALE_SON] asc, [SYS_RECORD_SON] asc, [SYS_SERIALE_PAR] asc, [SYS_RECORD_PAR] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_DOC') and name='DB_STORICO_PAR') create index DB_STORICO_PAR on DB_STORICO_DOC ([SYS_SERIALE_PAR] asc, [SYS_RECORD_PAR] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_DOC') and name='DB_STORICO_SON') create index DB_STORICO_SON on DB_STORICO_DOC ([SYS_SERIALE_SON] asc, [SYS_RECORD_SON] asc)
create table DB_STORICO_LINK ([SYS_SERIALE_SON] nvarchar(16), [SYS_SERIALE_PAR] nvarchar(16), [CAMPOREVIS] nvarchar(100), [CAMPOREVDATA] nvarchar(100), [PATHREV] nvarchar(255), [MIGRATELINKS] bit, [FILTEREDVIEW] bit, [IDRec] int not null identity(1, 1))
update DB_STORICO_LINK set [MIGRATELINKS]=0 where [MIGRATELINKS] is null
update DB_STORICO_LINK set [FILTEREDVIEW]=0 where [FILTEREDVIEW] is null
if exists(select * from sysindexes where name = 'CUR_DB_STORICO_LINKPrimaryKey') alter table DB_STORICO_LINK drop constraint CUR_DB_STORICO_LINKPrimaryKey
alter table DB_STORICO_LINK alter column [IDRec] int not null
alter table DB_STORICO_LINK add constraint [DEFVAL_DB_STORICO_LINKMIGRATELINKS] default 0 for [MIGRATELINKS]
alter table DB_STORICO_LINK add constraint [DEFVAL_DB_STORICO_LINKFILTEREDVIEW] default 0 for [FILTEREDVIEW]
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_LINK') and name='CUR_DB_STORICO_LINKPrimaryKey') alter table DB_STORICO_LINK add constraint CUR_DB_STORICO_LINKPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_LINK') and name='IDRec') create index IDRec on DB_STORICO_LINK ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_LINK') and name='SYS_SERIALE_PAR') create index SYS_SERIALE_PAR on DB_STORICO_LINK ([SYS_SERIALE_PAR] asc)
if not exists(select * from sys.indexes where object_id = object_id('DB_STORICO_LINK') and name='SYS_SERIALE_SON') create index SYS_SERIALE_SON on DB_STORICO_LINK ([SYS_SERIALE_SON] asc)
create table DefFCom ([IDProcesso] int not null identity(1, 1), [IdTipoFProc] int, [NomeProc] nvarchar(50), [ArcOrig] nvarchar(50), [Arc_Dir] bit, [ArcDest] nvarchar(50), [DestAuto] bit, [Elaborati] bit, [FoglioCom] bit, [PathFlCom] nvarchar(255), [ValoreCom] nvarchar(50), [LEFT] int, [TOP] int, [RIGHT] int, [BOTTOM] int, [NewRec] int, [DelFCom] int, [SYSData] datetime, [PrimaoTutte] bit, [SaveOrig] bit, [JoinRig] bit, [ShowError] bit)
update DefFCom set [Arc_Dir]=0 where [Arc_Dir] is null
update DefFCom set [DestAuto]=0 where [DestAuto] is null
update DefFCom set [Elaborati]=0 where [Elaborati] is null
update DefFCom set [FoglioCom]=0 where [FoglioCom] is null
update DefFCom set [NewRec]=1 where [NewRec] is null
update DefFCom set [DelFCom]=1 where [DelFCom] is null
update DefFCom set [PrimaoTutte]=0 where [PrimaoTutte] is null
update DefFCom set [SaveOrig]=0 where [SaveOrig] is null
update DefFCom set [JoinRig]=0 where [JoinRig] is null
update DefFCom set [ShowError]=0 where [ShowError] is null
if exists(select * from sysindexes where name = 'CUR_DefFComPrimaryKey') alter table DefFCom drop constraint CUR_DefFComPrimaryKey
alter table DefFCom alter column [IDProcesso] int not null
alter table DefFCom add constraint [DEFVAL_DefFComArc_Dir] default 0 for [Arc_Dir]
alter table DefFCom add constraint [DEFVAL_DefFComDestAuto] default 0 for [DestAuto]
alter table DefFCom add constraint [DEFVAL_DefFComElaborati] default 0 for [Elaborati]
alter table DefFCom add constraint [DEFVAL_DefFComFoglioCom] default 0 for [FoglioCom]
alter table DefFCom add constraint [DEFVAL_DefFComNewRec] default 1 for [NewRec]
alter table DefFCom add constraint [DEFVAL_DefFComDelFCom] default 1 for [DelFCom]
alter table DefFCom add constraint [DEFVAL_DefFComPrimaoTutte] default 0 for [PrimaoTutte]
alter table DefFCom add constraint [DEFVAL_DefFComSaveOrig] default 0 for [SaveOrig]
alter table DefFCom add constraint [DEFVAL_DefFComJoinRig] default 0 for [JoinRig]
alter table DefFCom add constraint [DEFVAL_DefFComShowError] default 0 for [ShowError]
if not exists(select * from sys.indexes where object_id = object_id('DefFCom') and name='CUR_DefFComPrimaryKey') alter table DefFCom add constraint CUR_DefFComPrimaryKey primary key ([IDProcesso] asc)
if not exists(select * from sys.indexes where object_id = object_id('DefFCom') and name='IDProcesso') create index IDProcesso on DefFCom ([IDProcesso] asc)
if not exists(select * from sys.indexes where object_id = object_id('DefFCom') and name='IdTipoProc') create index IdTipoProc on DefFCom ([IdTipoFProc] asc)
create table DefSucc ([IDDefSucc] int not null identity(1, 1), [IDDefCom] int, [Nome] nvarchar(50), [TipoElabora] int, [PathReg] nvarchar(255))
if exists(select * from sysindexes where name = 'CUR_DefSuccPrimaryKey') alter table DefSucc drop constraint CUR_DefSuccPrimaryKey
alter table DefSucc alter column [IDDefSucc] int not null
if not exists(select * from sys.indexes where object_id = object_id('DefSucc') and name='CUR_DefSuccPrimaryKey') alter table DefSucc add constraint CUR_DefSuccPrimaryKey primary key ([IDDefSucc] asc)
if not exists(select * from sys.indexes where object_id = object_id('DefSucc') and name='IDDefSucc') create index IDDefSucc on DefSucc ([IDDefCom] asc)
if not exists(select * from sys.indexes where object_id = object_id('DefSucc') and name='IDValori') create index IDValori on DefSucc ([IDDefSucc] asc)
create table DOC_NOTIFICHE ([IDRec] int not null identity(1, 1), [SERIALE] nvarchar(16), [RECORD] int, [ID_MITTENTE] int, [MITTENTE] nvarchar(40) not null, [DATA_INVIO] datetime, [NOTE_INVIO] nvarchar(255), [ID_DESTINATARIO] int, [DESTINATARIO] nvarchar(40), [DATA_RICEZIONE] datetime, [NOTE_RICEZIONE] nvarchar(max), [RICEVUTO] bit, [NUOVO] bit)
update DOC_NOTIFICHE set [RECORD]=0 where [RECORD] is null
update DOC_NOTIFICHE set [ID_MITTENTE]=0 where [ID_MITTENTE] is null
update DOC_NOTIFICHE set [MITTENTE]='' where [MITTENTE] is null
update DOC_NOTIFICHE set [ID_DESTINATARIO]=0 where [ID_DESTINATARIO] is null
update DOC_NOTIFICHE set [RICEVUTO]=0 where [RICEVUTO] is null
update DOC_NOTIFICHE set [NUOVO]=1 where [NUOVO] is null
if exists(select * from sysindexes where name = 'CUR_DOC_NOTIFICHEPrimaryKey') alter table DOC_NOTIFICHE drop constraint CUR_DOC_NOTIFICHEPrimaryKey
alter table DOC_NOTIFICHE alter column [MITTENTE] nvarchar(40) not null
alter table DOC_NOTIFICHE alter column [IDRec] int not null
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHERECORD] default 0 for [RECORD]
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHEID_MITTENTE] default 0 for [ID_MITTENTE]
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHEMITTENTE] default '' for [MITTENTE]
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHEID_DESTINATARIO] default 0 for [ID_DESTINATARIO]
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHERICEVUTO] default 0 for [RICEVUTO]
alter table DOC_NOTIFICHE add constraint [DEFVAL_DOC_NOTIFICHENUOVO] default 1 for [NUOVO]
if not exists(select * from sys.indexes where object_id = object_id('DOC_NOTIFICHE') and name='CUR_DOC_NOTIFICHEPrimaryKey') alter table DOC_NOTIFICHE add constraint CUR_DOC_NOTIFICHEPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOC_NOTIFICHE') and name='ID_') create index ID_ on DOC_NOTIFICHE ([ID_DESTINATARIO] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOC_NOTIFICHE') and name='ID_SENDER') create index ID_SENDER on DOC_NOTIFICHE ([ID_MITTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOC_NOTIFICHE') and name='IDRec') create index IDRec on DOC_NOTIFICHE ([IDRec] asc)
create table DOC_PROCEDIMENTI ([SERIALE] nvarchar(16), [RECORD] int, [ID_UTENTE] int, [UTENTE_COMPLETO] nvarchar(40) not null, [DATA] datetime, [PROCEDIMENTO] nvarchar(255), [FIRMA] nvarchar(max), [FIRMATO] bit, [IDRec] int not null identity(1, 1))
update DOC_PROCEDIMENTI set [RECORD]=0 where [RECORD] is null
update DOC_PROCEDIMENTI set [ID_UTENTE]=0 where [ID_UTENTE] is null
update DOC_PROCEDIMENTI set [UTENTE_COMPLETO]='' where [UTENTE_COMPLETO] is null
update DOC_PROCEDIMENTI set [FIRMATO]=0 where [FIRMATO] is null
if exists(select * from sysindexes where name = 'CUR_DOC_PROCEDIMENTIPrimaryKey') alter table DOC_PROCEDIMENTI drop constraint CUR_DOC_PROCEDIMENTIPrimaryKey
alter table DOC_PROCEDIMENTI alter column [UTENTE_COMPLETO] nvarchar(40) not null
alter table DOC_PROCEDIMENTI alter column [IDRec] int not null
alter table DOC_PROCEDIMENTI add constraint [DEFVAL_DOC_PROCEDIMENTIRECORD] default 0 for [RECORD]
alter table DOC_PROCEDIMENTI add constraint [DEFVAL_DOC_PROCEDIMENTIID_UTENTE] default 0 for [ID_UTENTE]
alter table DOC_PROCEDIMENTI add constraint [DEFVAL_DOC_PROCEDIMENTIUTENTE_COMPLETO] default '' for [UTENTE_COMPLETO]
alter table DOC_PROCEDIMENTI add constraint [DEFVAL_DOC_PROCEDIMENTIFIRMATO] default 0 for [FIRMATO]
if not exists(select * from sys.indexes where object_id = object_id('DOC_PROCEDIMENTI') and name='CUR_DOC_PROCEDIMENTIPrimaryKey') alter table DOC_PROCEDIMENTI add constraint CUR_DOC_PROCEDIMENTIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('DOC_PROCEDIMENTI') and name='IDRec') create index IDRec on DOC_PROCEDIMENTI ([IDRec] asc)
create table FISCO_AGENZIE ([IDAgenzia] int not null identity(1, 1), [CodUff] nvarchar(3), [Denominazione] nvarchar(50), [Ufficio] nvarchar(50), [Via] nvarchar(50), [Cap] nvarchar(5), [Citta] nvarchar(50), [Prov] nvarchar(2))
update FISCO_AGENZIE set [Denominazione]='Agenzia delle Entrate' where [Denominazione] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_AGENZIEPrimaryKey') alter table FISCO_AGENZIE drop constraint CUR_FISCO_AGENZIEPrimaryKey
alter table FISCO_AGENZIE alter column [IDAgenzia] int not null
alter table FISCO_AGENZIE add constraint [DEFVAL_FISCO_AGENZIEDenominazione] default 'Agenzia delle Entrate' for [Denominazione]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_AGENZIE') and name='CUR_FISCO_AGENZIEPrimaryKey') alter table FISCO_AGENZIE add constraint CUR_FISCO_AGENZIEPrimaryKey primary key ([IDAgenzia] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_AGENZIE') and name='IDAgenzia') create index IDAgenzia on FISCO_AGENZIE ([IDAgenzia] asc)
create table FISCO_ANAG_PERCORSI ([ID_Anag] int, [ID_TipoDoc] int, [ID_Sez] int, [Sez_media] int, [Sez_path] nvarchar(255))
update FISCO_ANAG_PERCORSI set [ID_Anag]=0 where [ID_Anag] is null
update FISCO_ANAG_PERCORSI set [ID_TipoDoc]=0 where [ID_TipoDoc] is null
update FISCO_ANAG_PERCORSI set [ID_Sez]=0 where [ID_Sez] is null
update FISCO_ANAG_PERCORSI set [Sez_media]=0 where [Sez_media] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_ANAG_PERCORSIPrimaryKey') alter table FISCO_ANAG_PERCORSI drop constraint CUR_FISCO_ANAG_PERCORSIPrimaryKey
alter table FISCO_ANAG_PERCORSI alter column [ID_Anag] int not null
alter table FISCO_ANAG_PERCORSI alter column [ID_TipoDoc] int not null
alter table FISCO_ANAG_PERCORSI alter column [ID_Sez] int not null
alter table FISCO_ANAG_PERCORSI alter column [Sez_media] int not null
alter table FISCO_ANAG_PERCORSI add constraint [DEFVAL_FISCO_ANAG_PERCORSIID_Anag] default 0 for [ID_Anag]
alter table FISCO_ANAG_PERCORSI add constraint [DEFVAL_FISCO_ANAG_PERCORSIID_TipoDoc] default 0 for [ID_TipoDoc]
alter table FISCO_ANAG_PERCORSI add constraint [DEFVAL_FISCO_ANAG_PERCORSIID_Sez] default 0 for [ID_Sez]
alter table FISCO_ANAG_PERCORSI add constraint [DEFVAL_FISCO_ANAG_PERCORSISez_media] default 0 for [Sez_media]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_PERCORSI') and name='CUR_FISCO_ANAG_PERCORSIPrimaryKey') alter table FISCO_ANAG_PERCORSI add constraint CUR_FISCO_ANAG_PERCORSIPrimaryKey primary key ([ID_Anag] asc, [ID_TipoDoc] asc, [ID_Sez] asc, [Sez_media] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_PERCORSI') and name='ID_Anag') create index ID_Anag on FISCO_ANAG_PERCORSI ([ID_Anag] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_PERCORSI') and name='ID_Sez') create index ID_Sez on FISCO_ANAG_PERCORSI ([ID_Sez] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_PERCORSI') and name='ID_TipoDoc') create index ID_TipoDoc on FISCO_ANAG_PERCORSI ([ID_TipoDoc] asc)
create table FISCO_ANAG_SEZIO ([ID_Sezio] int, [ID_Anag] int, [Flag_path_carta] bit, [Flag_path_elett] bit)
update FISCO_ANAG_SEZIO set [ID_Sezio]=0 where [ID_Sezio] is null
update FISCO_ANAG_SEZIO set [ID_Anag]=0 where [ID_Anag] is null
update FISCO_ANAG_SEZIO set [Flag_path_carta]=0 where [Flag_path_carta] is null
update FISCO_ANAG_SEZIO set [Flag_path_elett]=0 where [Flag_path_elett] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_ANAG_SEZIOPrimaryKey') alter table FISCO_ANAG_SEZIO drop constraint CUR_FISCO_ANAG_SEZIOPrimaryKey
alter table FISCO_ANAG_SEZIO alter column [ID_Sezio] int not null
alter table FISCO_ANAG_SEZIO alter column [ID_Anag] int not null
alter table FISCO_ANAG_SEZIO add constraint [DEFVAL_FISCO_ANAG_SEZIOID_Sezio] default 0 for [ID_Sezio]
alter table FISCO_ANAG_SEZIO add constraint [DEFVAL_FISCO_ANAG_SEZIOID_Anag] default 0 for [ID_Anag]
alter table FISCO_ANAG_SEZIO add constraint [DEFVAL_FISCO_ANAG_SEZIOFlag_path_carta] default 0 for [Flag_path_carta]
alter table FISCO_ANAG_SEZIO add constraint [DEFVAL_FISCO_ANAG_SEZIOFlag_path_elett] default 0 for [Flag_path_elett]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_SEZIO') and name='CUR_FISCO_ANAG_SEZIOPrimaryKey') alter table FISCO_ANAG_SEZIO add constraint CUR_FISCO_ANAG_SEZIOPrimaryKey primary key ([ID_Sezio] asc, [ID_Anag] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_SEZIO') and name='ID_Anag') create index ID_Anag on FISCO_ANAG_SEZIO ([ID_Anag] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAG_SEZIO') and name='ID_Sezio') create index ID_Sezio on FISCO_ANAG_SEZIO ([ID_Sezio] asc)
create table FISCO_ANAGRAFICHE ([ContribuenteCodice] int not null identity(1, 1), [ContribuentePersonaFisica] nvarchar(1), [ContribuenteSocCapitali] nvarchar(1), [ContribuenteDenominazione] nvarchar(60), [ContribuenteCognome] nvarchar(60), [ContribuenteNome] nvarchar(24), [ContribuenteNascitaData] datetime, [ContribuenteNascitaComune] nvarchar(40), [ContribuenteNascitaProvincia] nvarchar(2), [ContribuenteParIva] nvarchar(20), [ContribuenteCodFisc] nvarchar(20), [ContribuenteSesso] nvarchar(1), [ContribuenteResidenzaIndirizzo] nvarchar(65), [ContribuenteResidenzaNumCivico] nvarchar(10), [ContribuenteResidenzaFrazione] nvarchar(35), [ContribuenteResidenzaCAP] nvarchar(5), [ContribuenteResidenzaComune] nvarchar(40), [ContribuenteResidenzaProvincia] nvarchar(2), [ContribuenteSedeLegIndirizzo] nvarchar(65), [ContribuenteSedeLegNumCivico] nvarchar(10), [ContribuenteSedeLegFrazione] nvarchar(35), [ContribuenteSedeLegCAP] nvarchar(5), [ContribuenteSedeLegComune] nvarchar(40), [ContribuenteSedeLegProvincia] nvarchar(2), [ContribuenteDomFiscIndirizzo] nvarchar(65), [ContribuenteDomFiscNumCivico] nvarchar(10), [ContribuenteDomFiscFrazione] nvarchar(35), [ContribuenteDomFiscCAP] nvarchar(5), [ContribuenteDomFiscComune] nvarchar(40), [ContribuenteDomFiscProvincia] nvarchar(2), [ContribuenteCodDitta] nvarchar(10), [ContribuenteEMailPEC] nvarchar(255), [ContribuenteEMailSimple] nvarchar(255), [ContribuentePhone] nvarchar(20), [ContribuenteFax] nvarchar(20), [ContribuenteIBAN] nvarchar(40), [CodPaghe] nvarchar(10), [CodRedditi] nvarchar(10), [Mat_Inps_Ditta] nvarchar(15), [RappresentanteCognome] nvarchar(60), [RappresentanteNome] nvarchar(24), [RappresentanteIndirizzo] nvarchar(65), [RappresentanteCAP] nvarchar(5), [RappresentanteComune] nvarchar(40), [RappresentanteProvincia] nvarchar(2), [RappresentanteNascitaData] datetime, [RappresentanteNascitaComune] nvarchar(40), [RappresentanteNascitaProvincia] nvarchar(2), [RappresentanteCodFisc] nvarchar(16), [RappresentanteSesso] nvarchar(1), [AnagraficaDisattivata] nvarchar(1), [AnagraficaCongelata] nvarchar(1), [CodConcBanca] int, [CodAgenziaEnt] int, [CodTrasmInt] int, [CodRespCons] int, [TipoLuogoCons] int, [CodLuogo] int, [FlagAutoResp] bit, [TipoContabilita] nvarchar(1), [TipoAnag] int, [ImpegnoNumero] int, [ImpegnoData] datetime, [NumIscrCAF] nvarchar(5), [ImpTipoSoggettoObbl] int, [PWD_Remote] nvarchar(60))
update FISCO_ANAGRAFICHE set [CodConcBanca]=0 where [CodConcBanca] is null
update FISCO_ANAGRAFICHE set [CodAgenziaEnt]=0 where [CodAgenziaEnt] is null
update FISCO_ANAGRAFICHE set [CodTrasmInt]=0 where [CodTrasmInt] is null
update FISCO_ANAGRAFICHE set [TipoLuogoCons]=1 where [TipoLuogoCons] is null
update FISCO_ANAGRAFICHE set [FlagAutoResp]=0 where [FlagAutoResp] is null
update FISCO_ANAGRAFICHE set [ImpegnoNumero]=1 where [ImpegnoNumero] is null
update FISCO_ANAGRAFICHE set [ImpTipoSoggettoObbl]=0 where [ImpTipoSoggettoObbl] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_ANAGRAFICHEPrimaryKey') alter table FISCO_ANAGRAFICHE drop constraint CUR_FISCO_ANAGRAFICHEPrimaryKey
alter table FISCO_ANAGRAFICHE alter column [ContribuenteCodice] int not null
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHECodConcBanca] default 0 for [CodConcBanca]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHECodAgenziaEnt] default 0 for [CodAgenziaEnt]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHECodTrasmInt] default 0 for [CodTrasmInt]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHETipoLuogoCons] default 1 for [TipoLuogoCons]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHEFlagAutoResp] default 0 for [FlagAutoResp]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHEImpegnoNumero] default 1 for [ImpegnoNumero]
alter table FISCO_ANAGRAFICHE add constraint [DEFVAL_FISCO_ANAGRAFICHEImpTipoSoggettoObbl] default 0 for [ImpTipoSoggettoObbl]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAGRAFICHE') and name='CUR_FISCO_ANAGRAFICHEPrimaryKey') alter table FISCO_ANAGRAFICHE add constraint CUR_FISCO_ANAGRAFICHEPrimaryKey primary key ([ContribuenteCodice] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAGRAFICHE') and name='CF') create index CF on FISCO_ANAGRAFICHE ([ContribuenteCodFisc] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_ANAGRAFICHE') and name='PIVA') create index PIVA on FISCO_ANAGRAFICHE ([ContribuenteParIva] asc)
create table FISCO_BOLLI_CONTA ([IDRec] int not null identity(1, 1), [ContribuenteCodice] int, [Anno] int, [Conto] nvarchar(1), [NumDoc] int, [CodDoc] int, [Documento] nvarchar(50), [UM] nvarchar(1), [qPresunta] int, [qProdotta] int, [qResidua] int, [qDebito] int, [qLottoImp] int, [qAvanzo] int, [Imposta] money, [Tariffa] int, [Definitivo] bit)
update FISCO_BOLLI_CONTA set [ContribuenteCodice]=0 where [ContribuenteCodice] is null
update FISCO_BOLLI_CONTA set [Anno]=0 where [Anno] is null
update FISCO_BOLLI_CONTA set [NumDoc]=0 where [NumDoc] is null
update FISCO_BOLLI_CONTA set [CodDoc]=0 where [CodDoc] is null
update FISCO_BOLLI_CONTA set [qPresunta]=0 where [qPresunta] is null
update FISCO_BOLLI_CONTA set [qProdotta]=0 where [qProdotta] is null
update FISCO_BOLLI_CONTA set [qResidua]=0 where [qResidua] is null
update FISCO_BOLLI_CONTA set [qDebito]=0 where [qDebito] is null
update FISCO_BOLLI_CONTA set [qLottoImp]=0 where [qLottoImp] is null
update FISCO_BOLLI_CONTA set [qAvanzo]=0 where [qAvanzo] is null
update FISCO_BOLLI_CONTA set [Imposta]=0 where [Imposta] is null
update FISCO_BOLLI_CONTA set [Tariffa]=0 where [Tariffa] is null
update FISCO_BOLLI_CONTA set [Definitivo]=0 where [Definitivo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_CONTAPrimaryKey') alter table FISCO_BOLLI_CONTA drop constraint CUR_FISCO_BOLLI_CONTAPrimaryKey
alter table FISCO_BOLLI_CONTA alter column [IDRec] int not null
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAContribuenteCodice] default 0 for [ContribuenteCodice]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAAnno] default 0 for [Anno]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTANumDoc] default 0 for [NumDoc]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTACodDoc] default 0 for [CodDoc]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqPresunta] default 0 for [qPresunta]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqProdotta] default 0 for [qProdotta]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqResidua] default 0 for [qResidua]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqDebito] default 0 for [qDebito]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqLottoImp] default 0 for [qLottoImp]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAqAvanzo] default 0 for [qAvanzo]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTAImposta] default 0 for [Imposta]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTATariffa] default 0 for [Tariffa]
alter table FISCO_BOLLI_CONTA add constraint [DEFVAL_FISCO_BOLLI_CONTADefinitivo] default 0 for [Definitivo]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_CONTA') and name='CUR_FISCO_BOLLI_CONTAPrimaryKey') alter table FISCO_BOLLI_CONTA add constraint CUR_FISCO_BOLLI_CONTAPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_CONTA') and name='NumDoc') create index NumDoc on FISCO_BOLLI_CONTA ([NumDoc] asc)
create table FISCO_BOLLI_F23 ([IDRec] int not null identity(1, 1), [TipoModello] nvarchar(10), [IDVersamento] int, [ContribuenteCodice] int, [Anno] int, [ContribuenteCodDitta] nvarchar(10), [C1concessionario] nvarchar(45), [C2delega] nvarchar(45), [C2agenzia] nvarchar(30), [C2provincia] nvarchar(2), [C4denominazione] nvarchar(100), [C4datanascita] datetime, [C4sesso] nvarchar(1), [C4comune] nvarchar(50), [C4prov] nvarchar(2), [C4codfisc] nvarchar(16), [C5denominazione] nvarchar(100), [C5datanascita] datetime, [C5sesso] nvarchar(1), [C5comune] nvarchar(50), [C5prov] nvarchar(2), [C5codfisc] nvarchar(16), [C6ufficio] nvarchar(3), [C8contenzioso] nvarchar(1), [C9causale] nvarchar(2), [C10anno] nvarchar(4), [C10numero] nvarchar(15), [C11tributo1] nvarchar(4), [C11tributo2] nvarchar(4), [C11tributo3] nvarchar(4), [C11tributo4] nvarchar(4), [C11tributo5] nvarchar(4), [C11tributo6] nvarchar(4), [C11tributo7] nvarchar(4), [C11tributo8] nvarchar(4), [C13importo1] money, [C13importo2] money, [C13importo3] money, [C13importo4] money, [C13importo5] money, [C13importo6] money, [C13importo7] money, [C13importo8] money, [C14destinatario1] nvarchar(4), [C14destinatario2] nvarchar(4), [C14destinatario3] nvarchar(4), [C14destinatario4] nvarchar(4), [C14destinatario5] nvarchar(4), [C14destinatario6] nvarchar(4), [C14destinatario7] nvarchar(4), [C14destinatario8] nvarchar(4), [EuroLettere] nvarchar(255), [Totale] money, [Note] nvarchar(50))
update FISCO_BOLLI_F23 set [IDVersamento]=0 where [IDVersamento] is null
update FISCO_BOLLI_F23 set [ContribuenteCodice]=0 where [ContribuenteCodice] is null
update FISCO_BOLLI_F23 set [Anno]=0 where [Anno] is null
update FISCO_BOLLI_F23 set [C13importo1]=0 where [C13importo1] is null
update FISCO_BOLLI_F23 set [C13importo2]=0 where [C13importo2] is null
update FISCO_BOLLI_F23 set [C13importo3]=0 where [C13importo3] is null
update FISCO_BOLLI_F23 set [C13importo4]=0 where [C13importo4] is null
update FISCO_BOLLI_F23 set [C13importo5]=0 where [C13importo5] is null
update FISCO_BOLLI_F23 set [C13importo6]=0 where [C13importo6] is null
update FISCO_BOLLI_F23 set [C13importo7]=0 where [C13importo7] is null
update FISCO_BOLLI_F23 set [C13importo8]=0 where [C13importo8] is null
update FISCO_BOLLI_F23 set [Totale]=0 where [Totale] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_F23PrimaryKey') alter table FISCO_BOLLI_F23 drop constraint CUR_FISCO_BOLLI_F23PrimaryKey
alter table FISCO_BOLLI_F23 alter column [IDRec] int not null
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23IDVersamento] default 0 for [IDVersamento]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23ContribuenteCodice] default 0 for [ContribuenteCodice]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23Anno] default 0 for [Anno]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo1] default 0 for [C13importo1]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo2] default 0 for [C13importo2]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo3] default 0 for [C13importo3]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo4] default 0 for [C13importo4]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo5] default 0 for [C13importo5]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo6] default 0 for [C13importo6]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo7] default 0 for [C13importo7]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23C13importo8] default 0 for [C13importo8]
alter table FISCO_BOLLI_F23 add constraint [DEFVAL_FISCO_BOLLI_F23Totale] default 0 for [Totale]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_F23') and name='CUR_FISCO_BOLLI_F23PrimaryKey') alter table FISCO_BOLLI_F23 add constraint CUR_FISCO_BOLLI_F23PrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_F23') and name='ContribuenteCodice') create index ContribuenteCodice on FISCO_BOLLI_F23 ([ContribuenteCodice] asc)
create table FISCO_BOLLI_F24PROGR ([IDStudio] nvarchar(20) not null, [Progressivo] int)
update FISCO_BOLLI_F24PROGR set [IDStudio]='' where [IDStudio] is null
update FISCO_BOLLI_F24PROGR set [Progressivo]=0 where [Progressivo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_F24PROGRPrimaryKey') alter table FISCO_BOLLI_F24PROGR drop constraint CUR_FISCO_BOLLI_F24PROGRPrimaryKey
alter table FISCO_BOLLI_F24PROGR alter column [IDStudio] nvarchar(20) not null
alter table FISCO_BOLLI_F24PROGR alter column [IDStudio] nvarchar(20) not null
alter table FISCO_BOLLI_F24PROGR add constraint [DEFVAL_FISCO_BOLLI_F24PROGRIDStudio] default '' for [IDStudio]
alter table FISCO_BOLLI_F24PROGR add constraint [DEFVAL_FISCO_BOLLI_F24PROGRProgressivo] default 0 for [Progressivo]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_F24PROGR') and name='CUR_FISCO_BOLLI_F24PROGRPrimaryKey') alter table FISCO_BOLLI_F24PROGR add constraint CUR_FISCO_BOLLI_F24PROGRPrimaryKey primary key ([IDStudio] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_F24PROGR') and name='IDStudio') create index IDStudio on FISCO_BOLLI_F24PROGR ([IDStudio] asc)
create table FISCO_BOLLI_MOVIMENTI ([IDRec] int not null identity(1, 1), [ContribuenteCodice] int, [Anno] int, [Causale] nvarchar(2), [Descrizione] nvarchar(50), [Dare] money, [Avere] money, [Saldo] money, [IDVersamento] int, [Definitivo] bit)
update FISCO_BOLLI_MOVIMENTI set [ContribuenteCodice]=0 where [ContribuenteCodice] is null
update FISCO_BOLLI_MOVIMENTI set [Anno]=0 where [Anno] is null
update FISCO_BOLLI_MOVIMENTI set [Dare]=0 where [Dare] is null
update FISCO_BOLLI_MOVIMENTI set [Avere]=0 where [Avere] is null
update FISCO_BOLLI_MOVIMENTI set [Saldo]=0 where [Saldo] is null
update FISCO_BOLLI_MOVIMENTI set [IDVersamento]=0 where [IDVersamento] is null
update FISCO_BOLLI_MOVIMENTI set [Definitivo]=0 where [Definitivo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey') alter table FISCO_BOLLI_MOVIMENTI drop constraint CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey
alter table FISCO_BOLLI_MOVIMENTI alter column [IDRec] int not null
alter table FISCO_BOLLI_MOVIMENTI alter column [IDRec] int not null
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIContribuenteCodice] default 0 for [ContribuenteCodice]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIAnno] default 0 for [Anno]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIDare] default 0 for [Dare]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIAvere] default 0 for [Avere]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTISaldo] default 0 for [Saldo]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIIDVersamento] default 0 for [IDVersamento]
alter table FISCO_BOLLI_MOVIMENTI add constraint [DEFVAL_FISCO_BOLLI_MOVIMENTIDefinitivo] default 0 for [Definitivo]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_MOVIMENTI') and name='CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey') alter table FISCO_BOLLI_MOVIMENTI add constraint CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_MOVIMENTI') and name='IDRec') create unique index IDRec on FISCO_BOLLI_MOVIMENTI ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_MOVIMENTI') and name='IDVersamento') create index IDVersamento on FISCO_BOLLI_MOVIMENTI ([IDVersamento] asc)
create table FISCO_BOLLI_TARIFFE ([TIPO_DOC_F] int, [DOCUMENTO] nvarchar(100), [TARIFFA] int, [UM] nvarchar(1), [LOTTOMIN] int, [IMPOSTA] money, [MAGGIORAZIONE] money)
update FISCO_BOLLI_TARIFFE set [TIPO_DOC_F]=0 where [TIPO_DOC_F] is null
update FISCO_BOLLI_TARIFFE set [TARIFFA]=0 where [TARIFFA] is null
update FISCO_BOLLI_TARIFFE set [UM]='P' where [UM] is null
update FISCO_BOLLI_TARIFFE set [LOTTOMIN]=0 where [LOTTOMIN] is null
update FISCO_BOLLI_TARIFFE set [IMPOSTA]=0 where [IMPOSTA] is null
update FISCO_BOLLI_TARIFFE set [MAGGIORAZIONE]=0 where [MAGGIORAZIONE] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_TARIFFEPrimaryKey') alter table FISCO_BOLLI_TARIFFE drop constraint CUR_FISCO_BOLLI_TARIFFEPrimaryKey
alter table FISCO_BOLLI_TARIFFE alter column [TIPO_DOC_F] int not null
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFETIPO_DOC_F] default 0 for [TIPO_DOC_F]
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFETARIFFA] default 0 for [TARIFFA]
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFEUM] default 'P' for [UM]
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFELOTTOMIN] default 0 for [LOTTOMIN]
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFEIMPOSTA] default 0 for [IMPOSTA]
alter table FISCO_BOLLI_TARIFFE add constraint [DEFVAL_FISCO_BOLLI_TARIFFEMAGGIORAZIONE] default 0 for [MAGGIORAZIONE]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_TARIFFE') and name='CUR_FISCO_BOLLI_TARIFFEPrimaryKey') alter table FISCO_BOLLI_TARIFFE add constraint CUR_FISCO_BOLLI_TARIFFEPrimaryKey primary key ([TIPO_DOC_F] asc)
create table FISCO_BOLLI_VERSAMENTI ([IDRec] int not null identity(1, 1), [ContribuenteCodice] int, [Anno] int, [Importo] money, [Note] nvarchar(50), [Data] datetime, [Cod_Azienda] nvarchar(6), [CAB_Sportello] nvarchar(6), [ID_F23] int)
update FISCO_BOLLI_VERSAMENTI set [ContribuenteCodice]=0 where [ContribuenteCodice] is null
update FISCO_BOLLI_VERSAMENTI set [Anno]=0 where [Anno] is null
update FISCO_BOLLI_VERSAMENTI set [Importo]=0 where [Importo] is null
update FISCO_BOLLI_VERSAMENTI set [ID_F23]=0 where [ID_F23] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey') alter table FISCO_BOLLI_VERSAMENTI drop constraint CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey
alter table FISCO_BOLLI_VERSAMENTI alter column [IDRec] int not null
alter table FISCO_BOLLI_VERSAMENTI add constraint [DEFVAL_FISCO_BOLLI_VERSAMENTIContribuenteCodice] default 0 for [ContribuenteCodice]
alter table FISCO_BOLLI_VERSAMENTI add constraint [DEFVAL_FISCO_BOLLI_VERSAMENTIAnno] default 0 for [Anno]
alter table FISCO_BOLLI_VERSAMENTI add constraint [DEFVAL_FISCO_BOLLI_VERSAMENTIImporto] default 0 for [Importo]
alter table FISCO_BOLLI_VERSAMENTI add constraint [DEFVAL_FISCO_BOLLI_VERSAMENTIID_F23] default 0 for [ID_F23]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_BOLLI_VERSAMENTI') and name='CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey') alter table FISCO_BOLLI_VERSAMENTI add constraint CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey primary key ([IDRec] asc)
create table FISCO_CONCBANCHE ([IDRec] int not null identity(1, 1), [Tipo] nvarchar(1), [Denominazione] nvarchar(50), [Agenzia_Ufficio] nvarchar(50), [Prov] nvarchar(2))
update FISCO_CONCBANCHE set [Tipo]='B' where [Tipo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_CONCBANCHEPrimaryKey') alter table FISCO_CONCBANCHE drop constraint CUR_FISCO_CONCBANCHEPrimaryKey
alter table FISCO_CONCBANCHE alter column [IDRec] int not null
alter table FISCO_CONCBANCHE add constraint [DEFVAL_FISCO_CONCBANCHETipo] default 'B' for [Tipo]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_CONCBANCHE') and name='CUR_FISCO_CONCBANCHEPrimaryKey') alter table FISCO_CONCBANCHE add constraint CUR_FISCO_CONCBANCHEPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_CONCBANCHE') and name='IDRec') create index IDRec on FISCO_CONCBANCHE ([IDRec] asc)
create table FISCO_F23 ([ContribuenteCodice] int, [C1concessionario] nvarchar(45), [C2delega] nvarchar(45), [C2agenzia] nvarchar(30), [C2provincia] nvarchar(2), [C6ufficio] nvarchar(3), [C8contenzioso] nvarchar(1), [C9causale] nvarchar(2), [C10anno] nvarchar(4), [C10numero] nvarchar(15), [C11tributo1] nvarchar(4), [C11tributo2] nvarchar(4), [C11tributo3] nvarchar(4), [C11tributo4] nvarchar(4), [C11tributo5] nvarchar(4), [C11tributo6] nvarchar(4), [C11tributo7] nvarchar(4), [C11tributo8] nvarchar(4), [C13importo1] money, [C13importo2] money, [C13importo3] money, [C13importo4] money, [C13importo5] money, [C13importo6] money, [C13importo7] money, [C13importo8] money, [C14destinatario1] nvarchar(4), [C14destinatario2] nvarchar(4), [C14destinatario3] nvarchar(4), [C14destinatario4] nvarchar(4), [C14destinatario5] nvarchar(4), [C14destinatario6] nvarchar(4), [C14destinatario7] nvarchar(4), [C14destinatario8] nvarchar(4), [EuroLettere] nvarchar(255), [Totale] money, [IDRec] int not null identity(1, 1))
update FISCO_F23 set [ContribuenteCodice]=0 where [ContribuenteCodice] is null
update FISCO_F23 set [C13importo1]=0 where [C13importo1] is null
update FISCO_F23 set [C13importo2]=0 where [C13importo2] is null
update FISCO_F23 set [C13importo3]=0 where [C13importo3] is null
update FISCO_F23 set [C13importo4]=0 where [C13importo4] is null
update FISCO_F23 set [C13importo5]=0 where [C13importo5] is null
update FISCO_F23 set [C13importo6]=0 where [C13importo6] is null
update FISCO_F23 set [C13importo7]=0 where [C13importo7] is null
update FISCO_F23 set [C13importo8]=0 where [C13importo8] is null
update FISCO_F23 set [Totale]=0 where [Totale] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_F23PrimaryKey') alter table FISCO_F23 drop constraint CUR_FISCO_F23PrimaryKey
alter table FISCO_F23 alter column [ContribuenteCodice] int not null
alter table FISCO_F23 alter column [IDRec] int not null
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23ContribuenteCodice] default 0 for [ContribuenteCodice]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo1] default 0 for [C13importo1]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo2] default 0 for [C13importo2]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo3] default 0 for [C13importo3]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo4] default 0 for [C13importo4]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo5] default 0 for [C13importo5]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo6] default 0 for [C13importo6]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo7] default 0 for [C13importo7]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23C13importo8] default 0 for [C13importo8]
alter table FISCO_F23 add constraint [DEFVAL_FISCO_F23Totale] default 0 for [Totale]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_F23') and name='CUR_FISCO_F23PrimaryKey') alter table FISCO_F23 add constraint CUR_FISCO_F23PrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_F23') and name='ContribuenteCodice') create unique index ContribuenteCodice on FISCO_F23 ([ContribuenteCodice] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_F23') and name='IDRec') create index IDRec on FISCO_F23 ([IDRec] asc)
create table FISCO_INTERMEDIARI ([IDRec] int not null identity(1, 1), [CodAnag] nvarchar(10), [CodDIRED] int)
update FISCO_INTERMEDIARI set [CodDIRED]=0 where [CodDIRED] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_INTERMEDIARIPrimaryKey') alter table FISCO_INTERMEDIARI drop constraint CUR_FISCO_INTERMEDIARIPrimaryKey
alter table FISCO_INTERMEDIARI alter column [IDRec] int not null
alter table FISCO_INTERMEDIARI add constraint [DEFVAL_FISCO_INTERMEDIARICodDIRED] default 0 for [CodDIRED]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_INTERMEDIARI') and name='CUR_FISCO_INTERMEDIARIPrimaryKey') alter table FISCO_INTERMEDIARI add constraint CUR_FISCO_INTERMEDIARIPrimaryKey primary key ([IDRec] asc)
create table FISCO_SEZIONALI ([IDRec] int not null identity(1, 1), [ID_TipoDoc] int, [Sez_descr] nvarchar(50), [Sez_carta] int, [Sez_elett] int, [Sez_fepa] int, [Flag_level] int)
if exists(select * from sysindexes where name = 'CUR_FISCO_SEZIONALIPrimaryKey') alter table FISCO_SEZIONALI drop constraint CUR_FISCO_SEZIONALIPrimaryKey
alter table FISCO_SEZIONALI alter column [IDRec] int not null
if not exists(select * from sys.indexes where object_id = object_id('FISCO_SEZIONALI') and name='CUR_FISCO_SEZIONALIPrimaryKey') alter table FISCO_SEZIONALI add constraint CUR_FISCO_SEZIONALIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('FISCO_SEZIONALI') and name='IDRec') create index IDRec on FISCO_SEZIONALI ([IDRec] asc)
create table FISCO_TIPOCONT ([Tipo] nvarchar(1) not null, [Descrizione] nvarchar(50))
update FISCO_TIPOCONT set [Tipo]='' where [Tipo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_TIPOCONTPrimaryKey') alter table FISCO_TIPOCONT drop constraint CUR_FISCO_TIPOCONTPrimaryKey
alter table FISCO_TIPOCONT alter column [Tipo] nvarchar(1) not null
alter table FISCO_TIPOCONT alter column [Tipo] nvarchar(1) not null
alter table FISCO_TIPOCONT add constraint [DEFVAL_FISCO_TIPOCONTTipo] default '' for [Tipo]
if not exists(select * from sys.indexes where object_id = object_id('FISCO_TIPOCONT') and name='CUR_FISCO_TIPOCONTPrimaryKey') alter table FISCO_TIPOCONT add constraint CUR_FISCO_TIPOCONTPrimaryKey primary key ([Tipo] asc)
create table GRUPPI ([ID_GRUPPO] int not null identity(1, 1), [GRUPPO] nvarchar(30), [EMAIL] nvarchar(255))
if exists(select * from sysindexes where name = 'CUR_GRUPPIID_GRUPPO') alter table GRUPPI drop constraint CUR_GRUPPIID_GRUPPO
alter table GRUPPI alter column [GRUPPO] nvarchar(30) not null
alter table GRUPPI alter column [ID_GRUPPO] int not null
if not exists(select * from sys.indexes where object_id = object_id('GRUPPI') and name='CUR_GRUPPIID_GRUPPO') alter table GRUPPI add constraint CUR_GRUPPIID_GRUPPO primary key ([ID_GRUPPO] asc)
if not exists(select * from sys.indexes where object_id = object_id('GRUPPI') and name='GRUPPO') create unique index GRUPPO on GRUPPI ([GRUPPO] asc)
create table JoinOnly ([IDJoin] int not null identity(1, 1), [IDProc] int, [CampiJoin] nvarchar(255), [CampiSost] nvarchar(255), [SYS_SYS2] bit, [Sostituisci] bit, [Aggiungi] bit, [MultiRec] bit, [UseOrig] bit, [PrefOrig] bit)
update JoinOnly set [IDProc]=0 where [IDProc] is null
update JoinOnly set [SYS_SYS2]=0 where [SYS_SYS2] is null
update JoinOnly set [Sostituisci]=0 where [Sostituisci] is null
update JoinOnly set [Aggiungi]=0 where [Aggiungi] is null
update JoinOnly set [MultiRec]=0 where [MultiRec] is null
update JoinOnly set [UseOrig]=0 where [UseOrig] is null
update JoinOnly set [PrefOrig]=0 where [PrefOrig] is null
if exists(select * from sysindexes where name = 'CUR_JoinOnlyPrimaryKey') alter table JoinOnly drop constraint CUR_JoinOnlyPrimaryKey
alter table JoinOnly alter column [IDJoin] int not null
alter table JoinOnly add constraint [DEFVAL_JoinOnlyIDProc] default 0 for [IDProc]
alter table JoinOnly add constraint [DEFVAL_JoinOnlySYS_SYS2] default 0 for [SYS_SYS2]
alter table JoinOnly add constraint [DEFVAL_JoinOnlySostituisci] default 0 for [Sostituisci]
alter table JoinOnly add constraint [DEFVAL_JoinOnlyAggiungi] default 0 for [Aggiungi]
alter table JoinOnly add constraint [DEFVAL_JoinOnlyMultiRec] default 0 for [MultiRec]
alter table JoinOnly add constraint [DEFVAL_JoinOnlyUseOrig] default 0 for [UseOrig]
alter table JoinOnly add constraint [DEFVAL_JoinOnlyPrefOrig] default 0 for [PrefOrig]
if not exists(select * from sys.indexes where object_id = object_id('JoinOnly') and name='CUR_JoinOnlyPrimaryKey') alter table JoinOnly add constraint CUR_JoinOnlyPrimaryKey primary key ([IDJoin] asc)
if not exists(select * from sys.indexes where object_id = object_id('JoinOnly') and name='IDJoin') create index IDJoin on JoinOnly ([IDJoin] asc)
if not exists(select * from sys.indexes where object_id = object_id('JoinOnly') and name='IDProc') create index IDProc on JoinOnly ([IDProc] asc)
create table LOGOTIPI ([LOGOTIPO] nvarchar(255), [FILE] nvarchar(255), [FILE_V] nvarchar(255), [FILE_C] nvarchar(255), [MODULO] nvarchar(50), [ANNO] int, [DESCRIZIONE] nvarchar(255), [OFFSET_X] float, [OFFSET_Y] float, [INTERLINE] float, [FONT_NAME] nvarchar(255), [FONT_WIDTH] float, [FONT_HEIGHT] float, [FONT_BOLD] bit, [FONT_ITALIC] bit, [ID_Logotipo] int not null identity(1, 1))
update LOGOTIPI set [ANNO]=0 where [ANNO] is null
update LOGOTIPI set [OFFSET_X]=0 where [OFFSET_X] is null
update LOGOTIPI set [OFFSET_Y]=0 where [OFFSET_Y] is null
update LOGOTIPI set [INTERLINE]=0 where [INTERLINE] is null
update LOGOTIPI set [FONT_WIDTH]=0 where [FONT_WIDTH] is null
update LOGOTIPI set [FONT_HEIGHT]=0 where [FONT_HEIGHT] is null
update LOGOTIPI set [FONT_BOLD]=0 where [FONT_BOLD] is null
update LOGOTIPI set [FONT_ITALIC]=0 where [FONT_ITALIC] is null
if exists(select * from sysindexes where name = 'CUR_LOGOTIPIPrimaryKey') alter table LOGOTIPI drop constraint CUR_LOGOTIPIPrimaryKey
alter table LOGOTIPI alter column [ID_Logotipo] int not null
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIANNO] default 0 for [ANNO]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIOFFSET_X] default 0 for [OFFSET_X]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIOFFSET_Y] default 0 for [OFFSET_Y]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIINTERLINE] default 0 for [INTERLINE]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIFONT_WIDTH] default 0 for [FONT_WIDTH]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIFONT_HEIGHT] default 0 for [FONT_HEIGHT]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIFONT_BOLD] default 0 for [FONT_BOLD]
alter table LOGOTIPI add constraint [DEFVAL_LOGOTIPIFONT_ITALIC] default 0 for [FONT_ITALIC]
if not exists(select * from sys.indexes where object_id = object_id('LOGOTIPI') and name='CUR_LOGOTIPIPrimaryKey') alter table LOGOTIPI add constraint CUR_LOGOTIPIPrimaryKey primary key ([ID_Logotipo] asc)
if not exists(select * from sys.indexes where object_id = object_id('LOGOTIPI') and name='ID_Logotipo') create index ID_Logotipo on LOGOTIPI ([ID_Logotipo] asc)
create table MARCHE_CARICO ([Fornitore] nvarchar(255), [Provider] nvarchar(255), [Data_Carico] datetime, [Utente] nvarchar(50), [Password] nvarchar(50), [Marche_Totali] int, [Marche_Utilizzate] int, [Ultimo_Utilizzo] datetime, [Disponibili] bit, [Note] nvarchar(255), [IDRec] int not null identity(1, 1))
update MARCHE_CARICO set [Marche_Totali]=0 where [Marche_Totali] is null
update MARCHE_CARICO set [Marche_Utilizzate]=0 where [Marche_Utilizzate] is null
update MARCHE_CARICO set [Disponibili]=0 where [Disponibili] is null
if exists(select * from sysindexes where name = 'CUR_MARCHE_CARICOPrimaryKey') alter table MARCHE_CARICO drop constraint CUR_MARCHE_CARICOPrimaryKey
alter table MARCHE_CARICO alter column [IDRec] int not null
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICOMarche_Totali] default 0 for [Marche_Totali]
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICOMarche_Utilizzate] default 0 for [Marche_Utilizzate]
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICODisponibili] default 0 for [Disponibili]
if not exists(select * from sys.indexes where object_id = object_id('MARCHE_CARICO') and name='CUR_MARCHE_CARICOPrimaryKey') alter table MARCHE_CARICO add constraint CUR_MARCHE_CARICOPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('MARCHE_CARICO') and name='IDRec') create index IDRec on MARCHE_CARICO ([IDRec] asc)
create table MARCHE_SCARICO ([Data_Utilizzo] datetime, [Marca_Utente] nvarchar(50), [Marca_Password] nvarchar(50), [Utente] nvarchar(40), [File_Sorgente] nvarchar(255), [File_Marcato] nvarchar(255), [Marca_Note] nvarchar(255), [IDRec] int not null identity(1, 1))
if exists(select * from sysindexes where name = 'CUR_MARCHE_SCARICOPrimaryKey') alter table MARCHE_SCARICO drop constraint CUR_MARCHE_SCARICOPrimaryKey
alter table MARCHE_SCARICO alter column [IDRec] int not null
if not exists(select * from sys.indexes where object_id = object_id('MARCHE_SCARICO') and name='CUR_MARCHE_SCARICOPrimaryKey') alter table MARCHE_SCARICO add constraint CUR_MARCHE_SCARICOPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('MARCHE_SCARICO') and name='IDRec') create index IDRec on MARCHE_SCARICO ([IDRec] asc)
create table PERMESSI ([ID_PERMESSO] int not null identity(1, 1), [PERMESSO] nvarchar(30), [APRI_DB] bit, [CREA_DB] bit, [VARIA_DB] bit, [CANCELLA_DB] bit, [SBLOCCA_DB] bit, [IMPORT_DB] bit, [EXPORT_DB] bit, [STAMPA_FILE] bit, [CREA_REC] bit, [VARIA_REC] bit, [CANCELLA_REC] bit, [STAMPA_REC] bit)
update PERMESSI set [APRI_DB]=0 where [APRI_DB] is null
update PERMESSI set [CREA_DB]=0 where [CREA_DB] is null
update PERMESSI set [VARIA_DB]=0 where [VARIA_DB] is null
update PERMESSI set [CANCELLA_DB]=0 where [CANCELLA_DB] is null
update PERMESSI set [SBLOCCA_DB]=0 where [SBLOCCA_DB] is null
update PERMESSI set [IMPORT_DB]=0 where [IMPORT_DB] is null
update PERMESSI set [EXPORT_DB]=0 where [EXPORT_DB] is null
update PERMESSI set [STAMPA_FILE]=0 where [STAMPA_FILE] is null
update PERMESSI set [CREA_REC]=0 where [CREA_REC] is null
update PERMESSI set [VARIA_REC]=0 where [VARIA_REC] is null
update PERMESSI set [CANCELLA_REC]=0 where [CANCELLA_REC] is null
update PERMESSI set [STAMPA_REC]=0 where [STAMPA_REC] is null
if exists(select * from sysindexes where name = 'CUR_PERMESSIID_PERMESSO') alter table PERMESSI drop constraint CUR_PERMESSIID_PERMESSO
alter table PERMESSI alter column [ID_PERMESSO] int not null
alter table PERMESSI alter column [PERMESSO] nvarchar(30) not null
alter table PERMESSI add constraint [DEFVAL_PERMESSIAPRI_DB] default 0 for [APRI_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSICREA_DB] default 0 for [CREA_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSIVARIA_DB] default 0 for [VARIA_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSICANCELLA_DB] default 0 for [CANCELLA_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSISBLOCCA_DB] default 0 for [SBLOCCA_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSIIMPORT_DB] default 0 for [IMPORT_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSIEXPORT_DB] default 0 for [EXPORT_DB]
alter table PERMESSI add constraint [DEFVAL_PERMESSISTAMPA_FILE] default 0 for [STAMPA_FILE]
alter table PERMESSI add constraint [DEFVAL_PERMESSICREA_REC] default 0 for [CREA_REC]
alter table PERMESSI add constraint [DEFVAL_PERMESSIVARIA_REC] default 0 for [VARIA_REC]
alter table PERMESSI add constraint [DEFVAL_PERMESSICANCELLA_REC] default 0 for [CANCELLA_REC]
alter table PERMESSI add constraint [DEFVAL_PERMESSISTAMPA_REC] default 0 for [STAMPA_REC]
if not exists(select * from sys.indexes where object_id = object_id('PERMESSI') and name='CUR_PERMESSIID_PERMESSO') alter table PERMESSI add constraint CUR_PERMESSIID_PERMESSO primary key ([ID_PERMESSO] asc)
if not exists(select * from sys.indexes where object_id = object_id('PERMESSI') and name='PERMESSO') create unique index PERMESSO on PERMESSI ([PERMESSO] asc)
create table PROCESSI ([ID_PROCESSO] int not null identity(1, 1), [NOME] nvarchar(50) not null, [SORGENTE] nvarchar(16), [FILTRO] nvarchar(max), [PROCESSO_SRC] bit, [COPIA_DOCS] bit, [AGGIORNA_SRC] bit, [AUTO_DST] bit, [DESTINAZIONE] nvarchar(16), [RIFINITURA] bit, [ELIMINA_VUOTE] bit, [RUOTA_A3] int, [MULTI_PAGINA] bit, [FOGLIO_COMANDI] bit, [BARCODE_FC_L] int, [BARCODE_FC_T] int, [BARCODE_FC_R] int, [BARCODE_FC_B] int, [TIPO_BARCODE_FC] int, [BARCODE_SCADENTE] bit, [VAL_BARCODE_FC] nvarchar(255), [FC_SEPARATORE] bit, [ELIMINA_FC] bit, [PAGINE_PER_DOC] int, [IMG_CAMPIONE] nvarchar(255), [MULTI_DST] bit, [AGGIUNGI_DST] bit, [SOVRASCRIVI_DST] bit, [APPENDI_PAG_DST] bit, [PROGRESSIVO_DST] nvarchar(64), [COPIA_CAMPI_ND] bit, [CONVERTI_PDF] bit, [SALVA_FILE2] bit, [ID_DIZ_DESC] nvarchar(25))
update PROCESSI set [NOME]='' where [NOME] is null
update PROCESSI set [PROCESSO_SRC]=0 where [PROCESSO_SRC] is null
update PROCESSI set [COPIA_DOCS]=0 where [COPIA_DOCS] is null
update PROCESSI set [AGGIORNA_SRC]=1 where [AGGIORNA_SRC] is null
update PROCESSI set [AUTO_DST]=0 where [AUTO_DST] is null
update PROCESSI set [RIFINITURA]=1 where [RIFINITURA] is null
update PROCESSI set [ELIMINA_VUOTE]=1 where [ELIMINA_VUOTE] is null
update PROCESSI set [MULTI_PAGINA]=0 where [MULTI_PAGINA] is null
update PROCESSI set [FOGLIO_COMANDI]=0 where [FOGLIO_COMANDI] is null
update PROCESSI set [BARCODE_FC_L]=-1 where [BARCODE_FC_L] is null
update PROCESSI set [BARCODE_FC_T]=-1 where [BARCODE_FC_T] is null
update PROCESSI set [BARCODE_FC_R]=-1 where [BARCODE_FC_R] is null
update PROCESSI set [BARCODE_FC_B]=-1 where [BARCODE_FC_B] is null
update PROCESSI set [BARCODE_SCADENTE]=0 where [BARCODE_SCADENTE] is null
update PROCESSI set [FC_SEPARATORE]=0 where [FC_SEPARATORE] is null
update PROCESSI set [ELIMINA_FC]=1 where [ELIMINA_FC] is null
update PROCESSI set [PAGINE_PER_DOC]=0 where [PAGINE_PER_DOC] is null
update PROCESSI set [MULTI_DST]=0 where [MULTI_DST] is null
update PROCESSI set [AGGIUNGI_DST]=0 where [AGGIUNGI_DST] is null
update PROCESSI set [SOVRASCRIVI_DST]=0 where [SOVRASCRIVI_DST] is null
update PROCESSI set [APPENDI_PAG_DST]=0 where [APPENDI_PAG_DST] is null
update PROCESSI set [COPIA_CAMPI_ND]=0 where [COPIA_CAMPI_ND] is null
update PROCESSI set [CONVERTI_PDF]=0 where [CONVERTI_PDF] is null
update PROCESSI set [SALVA_FILE2]=0 where [SALVA_FILE2] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSIPrimaryKey') alter table PROCESSI drop constraint CUR_PROCESSIPrimaryKey
alter table PROCESSI alter column [NOME] nvarchar(50) not null
alter table PROCESSI alter column [ID_PROCESSO] int not null
alter table PROCESSI alter column [NOME] nvarchar(50) not null
alter table PROCESSI add constraint [DEFVAL_PROCESSINOME] default '' for [NOME]
alter table PROCESSI add constraint [DEFVAL_PROCESSIPROCESSO_SRC] default 0 for [PROCESSO_SRC]
alter table PROCESSI add constraint [DEFVAL_PROCESSICOPIA_DOCS] default 0 for [COPIA_DOCS]
alter table PROCESSI add constraint [DEFVAL_PROCESSIAGGIORNA_SRC] default 1 for [AGGIORNA_SRC]
alter table PROCESSI add constraint [DEFVAL_PROCESSIAUTO_DST] default 0 for [AUTO_DST]
alter table PROCESSI add constraint [DEFVAL_PROCESSIRIFINITURA] default 1 for [RIFINITURA]
alter table PROCESSI add constraint [DEFVAL_PROCESSIELIMINA_VUOTE] default 1 for [ELIMINA_VUOTE]
alter table PROCESSI add constraint [DEFVAL_PROCESSIMULTI_PAGINA] default 0 for [MULTI_PAGINA]
alter table PROCESSI add constraint [DEFVAL_PROCESSIFOGLIO_COMANDI] default 0 for [FOGLIO_COMANDI]
alter table PROCESSI add constraint [DEFVAL_PROCESSIBARCODE_FC_L] default -1 for [BARCODE_FC_L]
alter table PROCESSI add constraint [DEFVAL_PROCESSIBARCODE_FC_T] default -1 for [BARCODE_FC_T]
alter table PROCESSI add constraint [DEFVAL_PROCESSIBARCODE_FC_R] default -1 for [BARCODE_FC_R]
alter table PROCESSI add constraint [DEFVAL_PROCESSIBARCODE_FC_B] default -1 for [BARCODE_FC_B]
alter table PROCESSI add constraint [DEFVAL_PROCESSIBARCODE_SCADENTE] default 0 for [BARCODE_SCADENTE]
alter table PROCESSI add constraint [DEFVAL_PROCESSIFC_SEPARATORE] default 0 for [FC_SEPARATORE]
alter table PROCESSI add constraint [DEFVAL_PROCESSIELIMINA_FC] default 1 for [ELIMINA_FC]
alter table PROCESSI add constraint [DEFVAL_PROCESSIPAGINE_PER_DOC] default 0 for [PAGINE_PER_DOC]
alter table PROCESSI add constraint [DEFVAL_PROCESSIMULTI_DST] default 0 for [MULTI_DST]
alter table PROCESSI add constraint [DEFVAL_PROCESSIAGGIUNGI_DST] default 0 for [AGGIUNGI_DST]
alter table PROCESSI add constraint [DEFVAL_PROCESSISOVRASCRIVI_DST] default 0 for [SOVRASCRIVI_DST]
alter table PROCESSI add constraint [DEFVAL_PROCESSIAPPENDI_PAG_DST] default 0 for [APPENDI_PAG_DST]
alter table PROCESSI add constraint [DEFVAL_PROCESSICOPIA_CAMPI_ND] default 0 for [COPIA_CAMPI_ND]
alter table PROCESSI add constraint [DEFVAL_PROCESSICONVERTI_PDF] default 0 for [CONVERTI_PDF]
alter table PROCESSI add constraint [DEFVAL_PROCESSISALVA_FILE2] default 0 for [SALVA_FILE2]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSI') and name='CUR_PROCESSIPrimaryKey') alter table PROCESSI add constraint CUR_PROCESSIPrimaryKey primary key ([ID_PROCESSO] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSI') and name='PROCESSO') create unique index PROCESSO on PROCESSI ([NOME] asc)
create table PROCESSO_CAMPI ([ID_CAMPI] int not null identity(1, 1), [ID_PROCESSO] int not null, [SORGENTE] nvarchar(64), [DESTINAZIONE] nvarchar(64), [PREVALENZA_SRC] bit, [VALORE_ZERO] bit, [RICERCA] bit, [RICHIESTO] bit, [ETICHETTA] nvarchar(255))
update PROCESSO_CAMPI set [PREVALENZA_SRC]=1 where [PREVALENZA_SRC] is null
update PROCESSO_CAMPI set [VALORE_ZERO]=0 where [VALORE_ZERO] is null
update PROCESSO_CAMPI set [RICERCA]=0 where [RICERCA] is null
update PROCESSO_CAMPI set [RICHIESTO]=0 where [RICHIESTO] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_CAMPIPrimaryKey') alter table PROCESSO_CAMPI drop constraint CUR_PROCESSO_CAMPIPrimaryKey
alter table PROCESSO_CAMPI alter column [ID_CAMPI] int not null
alter table PROCESSO_CAMPI add constraint [DEFVAL_PROCESSO_CAMPIPREVALENZA_SRC] default 1 for [PREVALENZA_SRC]
alter table PROCESSO_CAMPI add constraint [DEFVAL_PROCESSO_CAMPIVALORE_ZERO] default 0 for [VALORE_ZERO]
alter table PROCESSO_CAMPI add constraint [DEFVAL_PROCESSO_CAMPIRICERCA] default 0 for [RICERCA]
alter table PROCESSO_CAMPI add constraint [DEFVAL_PROCESSO_CAMPIRICHIESTO] default 0 for [RICHIESTO]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_CAMPI') and name='CUR_PROCESSO_CAMPIPrimaryKey') alter table PROCESSO_CAMPI add constraint CUR_PROCESSO_CAMPIPrimaryKey primary key ([ID_CAMPI] asc)
create table PROCESSO_CAMPI_VALORE ([ID_VALORE] int not null identity(1, 1), [ID_CAMPI] int not null, [ID_FUNZIONE] int not null, [PARAMETRI] nvarchar(255), [POST_FUNZIONE] nvarchar(255))
update PROCESSO_CAMPI_VALORE set [ID_FUNZIONE]=-1 where [ID_FUNZIONE] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_CAMPI_VALOREPrimaryKey') alter table PROCESSO_CAMPI_VALORE drop constraint CUR_PROCESSO_CAMPI_VALOREPrimaryKey
alter table PROCESSO_CAMPI_VALORE alter column [ID_VALORE] int not null
alter table PROCESSO_CAMPI_VALORE add constraint [DEFVAL_PROCESSO_CAMPI_VALOREID_FUNZIONE] default -1 for [ID_FUNZIONE]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_CAMPI_VALORE') and name='CUR_PROCESSO_CAMPI_VALOREPrimaryKey') alter table PROCESSO_CAMPI_VALORE add constraint CUR_PROCESSO_CAMPI_VALOREPrimaryKey primary key ([ID_VALORE] asc)
create table PROCESSO_COMPUTER ([ID_COMPUTER] int not null identity(1, 1), [ID_PROCESSO] int not null, [COMPUTER] nvarchar(64) not null, [SORGENTE] nvarchar(64), [SCANAUTO] bit)
update PROCESSO_COMPUTER set [COMPUTER]='' where [COMPUTER] is null
update PROCESSO_COMPUTER set [SCANAUTO]=0 where [SCANAUTO] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_COMPUTERPrimaryKey') alter table PROCESSO_COMPUTER drop constraint CUR_PROCESSO_COMPUTERPrimaryKey
alter table PROCESSO_COMPUTER alter column [COMPUTER] nvarchar(64) not null
alter table PROCESSO_COMPUTER alter column [ID_COMPUTER] int not null
alter table PROCESSO_COMPUTER alter column [ID_COMPUTER] int not null
alter table PROCESSO_COMPUTER add constraint [DEFVAL_PROCESSO_COMPUTERCOMPUTER] default '' for [COMPUTER]
alter table PROCESSO_COMPUTER add constraint [DEFVAL_PROCESSO_COMPUTERSCANAUTO] default 0 for [SCANAUTO]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_COMPUTER') and name='CUR_PROCESSO_COMPUTERPrimaryKey') alter table PROCESSO_COMPUTER add constraint CUR_PROCESSO_COMPUTERPrimaryKey primary key ([ID_COMPUTER] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_COMPUTER') and name='ID_COMPUTER') create unique index ID_COMPUTER on PROCESSO_COMPUTER ([ID_COMPUTER] asc)
create table PROCESSO_FUNZIONI ([ID_FUNZIONE] int not null identity(1, 1), [ID_PROCESSO] int not null, [NOME] nvarchar(50) not null, [TIPO] nvarchar(10) not null, [PAG_VALORE] int, [AREA_L] int, [AREA_T] int, [AREA_R] int, [AREA_B] int, [AZIONE] nvarchar(255), [PARAMETRI] nvarchar(255), [EXTRA] nvarchar(255), [COMANDI] nvarchar(255))
update PROCESSO_FUNZIONI set [NOME]='' where [NOME] is null
update PROCESSO_FUNZIONI set [TIPO]='' where [TIPO] is null
update PROCESSO_FUNZIONI set [PAG_VALORE]=1 where [PAG_VALORE] is null
update PROCESSO_FUNZIONI set [AREA_L]=-1 where [AREA_L] is null
update PROCESSO_FUNZIONI set [AREA_T]=-1 where [AREA_T] is null
update PROCESSO_FUNZIONI set [AREA_R]=-1 where [AREA_R] is null
update PROCESSO_FUNZIONI set [AREA_B]=-1 where [AREA_B] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_FUNZIONIPrimaryKey') alter table PROCESSO_FUNZIONI drop constraint CUR_PROCESSO_FUNZIONIPrimaryKey
alter table PROCESSO_FUNZIONI alter column [NOME] nvarchar(50) not null
alter table PROCESSO_FUNZIONI alter column [TIPO] nvarchar(10) not null
alter table PROCESSO_FUNZIONI alter column [ID_PROCESSO] int not null
alter table PROCESSO_FUNZIONI alter column [NOME] nvarchar(50) not null
alter table PROCESSO_FUNZIONI alter column [ID_FUNZIONE] int not null
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONINOME] default '' for [NOME]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONITIPO] default '' for [TIPO]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONIPAG_VALORE] default 1 for [PAG_VALORE]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONIAREA_L] default -1 for [AREA_L]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONIAREA_T] default -1 for [AREA_T]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONIAREA_R] default -1 for [AREA_R]
alter table PROCESSO_FUNZIONI add constraint [DEFVAL_PROCESSO_FUNZIONIAREA_B] default -1 for [AREA_B]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_FUNZIONI') and name='CUR_PROCESSO_FUNZIONIPrimaryKey') alter table PROCESSO_FUNZIONI add constraint CUR_PROCESSO_FUNZIONIPrimaryKey primary key ([ID_FUNZIONE] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_FUNZIONI') and name='FUNZIONE') create unique index FUNZIONE on PROCESSO_FUNZIONI ([ID_PROCESSO] asc, [NOME] asc)
create table PROCESSO_LOTTI ([ID_LOTTO] int not null identity(1, 1), [ID_PROCESSO] int not null, [DATA] datetime, [UTENTE] nvarchar(40) not null, [COMPUTER] nvarchar(64) not null, [SORGENTE] nvarchar(16) not null, [VERIFICATO] bit)
update PROCESSO_LOTTI set [UTENTE]='' where [UTENTE] is null
update PROCESSO_LOTTI set [COMPUTER]='' where [COMPUTER] is null
update PROCESSO_LOTTI set [SORGENTE]='' where [SORGENTE] is null
update PROCESSO_LOTTI set [VERIFICATO]=0 where [VERIFICATO] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_LOTTIPrimaryKey') alter table PROCESSO_LOTTI drop constraint CUR_PROCESSO_LOTTIPrimaryKey
alter table PROCESSO_LOTTI alter column [UTENTE] nvarchar(40) not null
alter table PROCESSO_LOTTI alter column [COMPUTER] nvarchar(64) not null
alter table PROCESSO_LOTTI alter column [SORGENTE] nvarchar(16) not null
alter table PROCESSO_LOTTI alter column [ID_LOTTO] int not null
alter table PROCESSO_LOTTI add constraint [DEFVAL_PROCESSO_LOTTIUTENTE] default '' for [UTENTE]
alter table PROCESSO_LOTTI add constraint [DEFVAL_PROCESSO_LOTTICOMPUTER] default '' for [COMPUTER]
alter table PROCESSO_LOTTI add constraint [DEFVAL_PROCESSO_LOTTISORGENTE] default '' for [SORGENTE]
alter table PROCESSO_LOTTI add constraint [DEFVAL_PROCESSO_LOTTIVERIFICATO] default 0 for [VERIFICATO]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_LOTTI') and name='CUR_PROCESSO_LOTTIPrimaryKey') alter table PROCESSO_LOTTI add constraint CUR_PROCESSO_LOTTIPrimaryKey primary key ([ID_LOTTO] asc)
create table PROCESSO_LOTTO_DOCUMENTI ([ID_DOCUMENTO] int not null identity(1, 1), [ID_LOTTO] int not null, [SORGENTE_REC] int not null, [DESTINAZIONE] nvarchar(16), [DESTINAZIONE_REC] int, [ESITO] nvarchar(255), [V_COD] int, [V_ANNO] int, [V_COD_TIPO_DOC_F] int, [V_SERIE_DOC] int, [V_NUM_DOC] int)
update PROCESSO_LOTTO_DOCUMENTI set [ID_LOTTO]=0 where [ID_LOTTO] is null
update PROCESSO_LOTTO_DOCUMENTI set [SORGENTE_REC]=0 where [SORGENTE_REC] is null
update PROCESSO_LOTTO_DOCUMENTI set [DESTINAZIONE_REC]=0 where [DESTINAZIONE_REC] is null
update PROCESSO_LOTTO_DOCUMENTI set [V_COD]=0 where [V_COD] is null
update PROCESSO_LOTTO_DOCUMENTI set [V_ANNO]=0 where [V_ANNO] is null
update PROCESSO_LOTTO_DOCUMENTI set [V_COD_TIPO_DOC_F]=0 where [V_COD_TIPO_DOC_F] is null
update PROCESSO_LOTTO_DOCUMENTI set [V_SERIE_DOC]=0 where [V_SERIE_DOC] is null
update PROCESSO_LOTTO_DOCUMENTI set [V_NUM_DOC]=0 where [V_NUM_DOC] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey') alter table PROCESSO_LOTTO_DOCUMENTI drop constraint CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey
alter table PROCESSO_LOTTO_DOCUMENTI alter column [ID_DOCUMENTO] int not null
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIID_LOTTO] default 0 for [ID_LOTTO]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTISORGENTE_REC] default 0 for [SORGENTE_REC]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIDESTINAZIONE_REC] default 0 for [DESTINAZIONE_REC]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIV_COD] default 0 for [V_COD]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIV_ANNO] default 0 for [V_ANNO]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIV_COD_TIPO_DOC_F] default 0 for [V_COD_TIPO_DOC_F]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIV_SERIE_DOC] default 0 for [V_SERIE_DOC]
alter table PROCESSO_LOTTO_DOCUMENTI add constraint [DEFVAL_PROCESSO_LOTTO_DOCUMENTIV_NUM_DOC] default 0 for [V_NUM_DOC]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey') alter table PROCESSO_LOTTO_DOCUMENTI add constraint CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey primary key ([ID_DOCUMENTO] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='ID_RECORD') create index ID_RECORD on PROCESSO_LOTTO_DOCUMENTI ([ID_DOCUMENTO] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='NUM_DOC') create index NUM_DOC on PROCESSO_LOTTO_DOCUMENTI ([V_NUM_DOC] asc)
create table PROCESSO_MP ([ID_MP] int not null identity(1, 1), [ID_PROCESSO] int, [NOME] nvarchar(50) not null, [VERTICALE] bit, [RETRO] bit, [DIMENSIONE] int, [TAGLI] nvarchar(50), [ORDINE_FRONTE] nvarchar(50), [ORDINE_RETRO] nvarchar(50))
update PROCESSO_MP set [ID_PROCESSO]=0 where [ID_PROCESSO] is null
update PROCESSO_MP set [NOME]='' where [NOME] is null
update PROCESSO_MP set [VERTICALE]=0 where [VERTICALE] is null
update PROCESSO_MP set [RETRO]=0 where [RETRO] is null
update PROCESSO_MP set [DIMENSIONE]=0 where [DIMENSIONE] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_MPPrimaryKey') alter table PROCESSO_MP drop constraint CUR_PROCESSO_MPPrimaryKey
alter table PROCESSO_MP alter column [NOME] nvarchar(50) not null
alter table PROCESSO_MP alter column [ID_MP] int not null
alter table PROCESSO_MP add constraint [DEFVAL_PROCESSO_MPID_PROCESSO] default 0 for [ID_PROCESSO]
alter table PROCESSO_MP add constraint [DEFVAL_PROCESSO_MPNOME] default '' for [NOME]
alter table PROCESSO_MP add constraint [DEFVAL_PROCESSO_MPVERTICALE] default 0 for [VERTICALE]
alter table PROCESSO_MP add constraint [DEFVAL_PROCESSO_MPRETRO] default 0 for [RETRO]
alter table PROCESSO_MP add constraint [DEFVAL_PROCESSO_MPDIMENSIONE] default 0 for [DIMENSIONE]
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_MP') and name='CUR_PROCESSO_MPPrimaryKey') alter table PROCESSO_MP add constraint CUR_PROCESSO_MPPrimaryKey primary key ([ID_MP] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_MP') and name='ID_MP') create index ID_MP on PROCESSO_MP ([ID_MP] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROCESSO_MP') and name='ID_PROCESSO') create index ID_PROCESSO on PROCESSO_MP ([ID_PROCESSO] asc)
create table PROTO_CONFIG ([TIPOPROTO] nvarchar(1), [CONFIG] bit, [RICHIESTORFILE] bit, [RICHIESTOSFILE] bit, [BLOCCOR1] bit, [RICHIESTOR1] bit, [BLOCCOS1] bit, [RICHIESTOS1] bit, [BLOCCOR2] bit, [RICHIESTOR2] bit, [BLOCCOS2] bit, [RICHIESTOS2] bit, [BLOCCOR3] bit, [RICHIESTOR3] bit, [BLOCCOS3] bit, [RICHIESTOS3] bit, [BLOCCOR4] bit, [RICHIESTOR4] bit, [BLOCCOS4] bit, [RICHIESTOS4] bit, [BLOCCOR5] bit, [RICHIESTOR5] bit, [BLOCCOS5] bit, [RICHIESTOS5] bit, [RICHIESTOROGG] bit, [RICHIESTOSOGG] bit, [LOADCOMBO] bit, [IDRec] int not null identity(1, 1))
update PROTO_CONFIG set [CONFIG]=0 where [CONFIG] is null
update PROTO_CONFIG set [RICHIESTORFILE]=0 where [RICHIESTORFILE] is null
update PROTO_CONFIG set [RICHIESTOSFILE]=0 where [RICHIESTOSFILE] is null
update PROTO_CONFIG set [BLOCCOR1]=0 where [BLOCCOR1] is null
update PROTO_CONFIG set [RICHIESTOR1]=0 where [RICHIESTOR1] is null
update PROTO_CONFIG set [BLOCCOS1]=0 where [BLOCCOS1] is null
update PROTO_CONFIG set [RICHIESTOS1]=0 where [RICHIESTOS1] is null
update PROTO_CONFIG set [BLOCCOR2]=0 where [BLOCCOR2] is null
update PROTO_CONFIG set [RICHIESTOR2]=0 where [RICHIESTOR2] is null
update PROTO_CONFIG set [BLOCCOS2]=0 where [BLOCCOS2] is null
update PROTO_CONFIG set [RICHIESTOS2]=0 where [RICHIESTOS2] is null
update PROTO_CONFIG set [BLOCCOR3]=0 where [BLOCCOR3] is null
update PROTO_CONFIG set [RICHIESTOR3]=0 where [RICHIESTOR3] is null
update PROTO_CONFIG set [BLOCCOS3]=0 where [BLOCCOS3] is null
update PROTO_CONFIG set [RICHIESTOS3]=0 where [RICHIESTOS3] is null
update PROTO_CONFIG set [BLOCCOR4]=0 where [BLOCCOR4] is null
update PROTO_CONFIG set [RICHIESTOR4]=0 where [RICHIESTOR4] is null
update PROTO_CONFIG set [BLOCCOS4]=0 where [BLOCCOS4] is null
update PROTO_CONFIG set [RICHIESTOS4]=0 where [RICHIESTOS4] is null
update PROTO_CONFIG set [BLOCCOR5]=0 where [BLOCCOR5] is null
update PROTO_CONFIG set [RICHIESTOR5]=0 where [RICHIESTOR5] is null
update PROTO_CONFIG set [BLOCCOS5]=0 where [BLOCCOS5] is null
update PROTO_CONFIG set [RICHIESTOS5]=0 where [RICHIESTOS5] is null
update PROTO_CONFIG set [RICHIESTOROGG]=0 where [RICHIESTOROGG] is null
update PROTO_CONFIG set [RICHIESTOSOGG]=0 where [RICHIESTOSOGG] is null
update PROTO_CONFIG set [LOADCOMBO]=0 where [LOADCOMBO] is null
if exists(select * from sysindexes where name = 'CUR_PROTO_CONFIGPrimaryKey') alter table PROTO_CONFIG drop constraint CUR_PROTO_CONFIGPrimaryKey
alter table PROTO_CONFIG alter column [IDRec] int not null
alter table PROTO_CONFIG alter column [IDRec] int not null
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGCONFIG] default 0 for [CONFIG]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTORFILE] default 0 for [RICHIESTORFILE]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOSFILE] default 0 for [RICHIESTOSFILE]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOR1] default 0 for [BLOCCOR1]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOR1] default 0 for [RICHIESTOR1]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOS1] default 0 for [BLOCCOS1]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOS1] default 0 for [RICHIESTOS1]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOR2] default 0 for [BLOCCOR2]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOR2] default 0 for [RICHIESTOR2]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOS2] default 0 for [BLOCCOS2]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOS2] default 0 for [RICHIESTOS2]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOR3] default 0 for [BLOCCOR3]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOR3] default 0 for [RICHIESTOR3]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOS3] default 0 for [BLOCCOS3]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOS3] default 0 for [RICHIESTOS3]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOR4] default 0 for [BLOCCOR4]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOR4] default 0 for [RICHIESTOR4]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOS4] default 0 for [BLOCCOS4]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOS4] default 0 for [RICHIESTOS4]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOR5] default 0 for [BLOCCOR5]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOR5] default 0 for [RICHIESTOR5]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGBLOCCOS5] default 0 for [BLOCCOS5]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOS5] default 0 for [RICHIESTOS5]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOROGG] default 0 for [RICHIESTOROGG]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGRICHIESTOSOGG] default 0 for [RICHIESTOSOGG]
alter table PROTO_CONFIG add constraint [DEFVAL_PROTO_CONFIGLOADCOMBO] default 0 for [LOADCOMBO]
if not exists(select * from sys.indexes where object_id = object_id('PROTO_CONFIG') and name='CUR_PROTO_CONFIGPrimaryKey') alter table PROTO_CONFIG add constraint CUR_PROTO_CONFIGPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROTO_CONFIG') and name='IDRec') create unique index IDRec on PROTO_CONFIG ([IDRec] asc)
create table PROTO_DB ([ID_GRUPPO] int not null, [ANNO] int not null, [UNICO] bit, [PEC] bit, [SYS_SERIALE_RIC] nvarchar(16), [SYS_SERIALE_SPE] nvarchar(16), [SYS_SERIALE_PEC] nvarchar(16), [START_RIC] float, [START_SPE] float, [SYS_SERIALE_RIC_ORIG] nvarchar(16), [SYS_SERIALE_SPE_ORIG] nvarchar(16), [ATTIVA_INSERIMENTO] bit, [ETICHETTA_BARCODE] nvarchar(13))
update PROTO_DB set [UNICO]=0 where [UNICO] is null
update PROTO_DB set [PEC]=0 where [PEC] is null
update PROTO_DB set [ATTIVA_INSERIMENTO]=0 where [ATTIVA_INSERIMENTO] is null
if exists(select * from sysindexes where name = 'CUR_PROTO_DBPROTO_DB') alter table PROTO_DB drop constraint CUR_PROTO_DBPROTO_DB
alter table PROTO_DB alter column [ID_GRUPPO] int not null
alter table PROTO_DB alter column [ANNO] int not null
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBUNICO] default 0 for [UNICO]
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBPEC] default 0 for [PEC]
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBATTIVA_INSERIMENTO] default 0 for [ATTIVA_INSERIMENTO]
if not exists(select * from sys.indexes where object_id = object_id('PROTO_DB') and name='CUR_PROTO_DBPROTO_DB') alter table PROTO_DB add constraint CUR_PROTO_DBPROTO_DB primary key ([ID_GRUPPO] asc, [ANNO] asc)
create table PROTO_TABELLA ([TIPO_TAB] int, [RIC_SPE] int, [VALORE] nvarchar(255), [IDRec] int not null identity(1, 1))
update PROTO_TABELLA set [TIPO_TAB]=0 where [TIPO_TAB] is null
update PROTO_TABELLA set [RIC_SPE]=0 where [RIC_SPE] is null
if exists(select * from sysindexes where name = 'CUR_PROTO_TABELLAPrimaryKey') alter table PROTO_TABELLA drop constraint CUR_PROTO_TABELLAPrimaryKey
alter table PROTO_TABELLA alter column [IDRec] int not null
alter table PROTO_TABELLA add constraint [DEFVAL_PROTO_TABELLATIPO_TAB] default 0 for [TIPO_TAB]
alter table PROTO_TABELLA add constraint [DEFVAL_PROTO_TABELLARIC_SPE] default 0 for [RIC_SPE]
if not exists(select * from sys.indexes where object_id = object_id('PROTO_TABELLA') and name='CUR_PROTO_TABELLAPrimaryKey') alter table PROTO_TABELLA add constraint CUR_PROTO_TABELLAPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('PROTO_TABELLA') and name='IDRec') create index IDRec on PROTO_TABELLA ([IDRec] asc)
create table SCANNER ([COMPUTER] nvarchar(255), [PROFILO] nvarchar(50), [TWAIN] bit, [SORGENTE] nvarchar(255), [MODULO_ADF] bit, [INVERSIONE_BW] bit, [COMPRESSIONE] int, [SCAN_TYPE] int, [LUMINOSITA] int, [CONTRASTO] int, [RISOLUZIONE] int, [ROTAZIONE] int, [AREA_SCAN] bit, [AREA_START_X] float, [AREA_END_X] float, [AREA_START_Y] float, [AREA_END_Y] float, [FILE_TYPE] nvarchar(50) not null, [SUB_TYPE] int, [FILE_MULTIPAGE] bit, [IDRec] int not null identity(1, 1))
update SCANNER set [TWAIN]=0 where [TWAIN] is null
update SCANNER set [MODULO_ADF]=0 where [MODULO_ADF] is null
update SCANNER set [INVERSIONE_BW]=0 where [INVERSIONE_BW] is null
update SCANNER set [COMPRESSIONE]=0 where [COMPRESSIONE] is null
update SCANNER set [SCAN_TYPE]=0 where [SCAN_TYPE] is null
update SCANNER set [LUMINOSITA]=0 where [LUMINOSITA] is null
update SCANNER set [CONTRASTO]=0 where [CONTRASTO] is null
update SCANNER set [RISOLUZIONE]=0 where [RISOLUZIONE] is null
update SCANNER set [ROTAZIONE]=0 where [ROTAZIONE] is null
update SCANNER set [AREA_SCAN]=0 where [AREA_SCAN] is null
update SCANNER set [AREA_START_X]=0 where [AREA_START_X] is null
update SCANNER set [AREA_END_X]=0 where [AREA_END_X] is null
update SCANNER set [AREA_START_Y]=0 where [AREA_START_Y] is null
update SCANNER set [AREA_END_Y]=0 where [AREA_END_Y] is null
update SCANNER set [FILE_TYPE]='' where [FILE_TYPE] is null
update SCANNER set [SUB_TYPE]=0 where [SUB_TYPE] is null
update SCANNER set [FILE_MULTIPAGE]=0 where [FILE_MULTIPAGE] is null
if exists(select * from sysindexes where name = 'CUR_SCANNERPrimaryKey') alter table SCANNER drop constraint CUR_SCANNERPrimaryKey
alter table SCANNER alter column [FILE_TYPE] nvarchar(50) not null
alter table SCANNER alter column [IDRec] int not null
alter table SCANNER alter column [COMPUTER] nvarchar(255) not null
alter table SCANNER alter column [PROFILO] nvarchar(50) not null
alter table SCANNER add constraint [DEFVAL_SCANNERTWAIN] default 0 for [TWAIN]
alter table SCANNER add constraint [DEFVAL_SCANNERMODULO_ADF] default 0 for [MODULO_ADF]
alter table SCANNER add constraint [DEFVAL_SCANNERINVERSIONE_BW] default 0 for [INVERSIONE_BW]
alter table SCANNER add constraint [DEFVAL_SCANNERCOMPRESSIONE] default 0 for [COMPRESSIONE]
alter table SCANNER add constraint [DEFVAL_SCANNERSCAN_TYPE] default 0 for [SCAN_TYPE]
alter table SCANNER add constraint [DEFVAL_SCANNERLUMINOSITA] default 0 for [LUMINOSITA]
alter table SCANNER add constraint [DEFVAL_SCANNERCONTRASTO] default 0 for [CONTRASTO]
alter table SCANNER add constraint [DEFVAL_SCANNERRISOLUZIONE] default 0 for [RISOLUZIONE]
alter table SCANNER add constraint [DEFVAL_SCANNERROTAZIONE] default 0 for [ROTAZIONE]
alter table SCANNER add constraint [DEFVAL_SCANNERAREA_SCAN] default 0 for [AREA_SCAN]
alter table SCANNER add constraint [DEFVAL_SCANNERAREA_START_X] default 0 for [AREA_START_X]
alter table SCANNER add constraint [DEFVAL_SCANNERAREA_END_X] default 0 for [AREA_END_X]
alter table SCANNER add constraint [DEFVAL_SCANNERAREA_START_Y] default 0 for [AREA_START_Y]
alter table SCANNER add constraint [DEFVAL_SCANNERAREA_END_Y] default 0 for [AREA_END_Y]
alter table SCANNER add constraint [DEFVAL_SCANNERFILE_TYPE] default '' for [FILE_TYPE]
alter table SCANNER add constraint [DEFVAL_SCANNERSUB_TYPE] default 0 for [SUB_TYPE]
alter table SCANNER add constraint [DEFVAL_SCANNERFILE_MULTIPAGE] default 0 for [FILE_MULTIPAGE]
if not exists(select * from sys.indexes where object_id = object_id('SCANNER') and name='CUR_SCANNERPrimaryKey') alter table SCANNER add constraint CUR_SCANNERPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sys.indexes where object_id = object_id('SCANNER') and name='PROFILO') create unique index PROFILO on SCANNER ([COMPUTER] asc, [PROFILO] asc)
if not exists(select * from sys.indexes where object_id = object_id('SCANNER') and name='IDRec') create index IDRec on SCANNER ([IDRec] asc)
create table SCHEMI ([ID_SCHEMA] nvarchar(16) not null, [SYS_SERIALE] nvarchar(16) not null, [DESCRIZIONE] nvarchar(100), [VALIDO] bit, [SPOOL] nvarchar(255))
update SCHEMI set [ID_SCHEMA]='' where [ID_SCHEMA] is null
update SCHEMI set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update SCHEMI set [VALIDO]=0 where [VALIDO] is null
if exists(select * from sysindexes where name = 'CUR_SCHEMIDB_SCHEMI') alter table SCHEMI drop constraint CUR_SCHEMIDB_SCHEMI
alter table SCHEMI alter column [ID_SCHEMA] nvarchar(16) not null
alter table SCHEMI alter column [SYS_SERIALE] nvarchar(16) not null
alter table SCHEMI alter column [ID_SCHEMA] nvarchar(16) not null
alter table SCHEMI alter column [SYS_SERIALE] nvarchar(16) not null
alter table SCHEMI add constraint [DEFVAL_SCHEMIID_SCHEMA] default '' for [ID_SCHEMA]
alter table SCHEMI add constraint [DEFVAL_SCHEMISYS_SERIALE] default '' for [SYS_SERIALE]
alter table SCHEMI add constraint [DEFVAL_SCHEMIVALIDO] default 0 for [VALIDO]
if not exists(select * from sys.indexes where object_id = object_id('SCHEMI') and name='CUR_SCHEMIDB_SCHEMI') alter table SCHEMI add constraint CUR_SCHEMIDB_SCHEMI primary key ([ID_SCHEMA] asc, [SYS_SERIALE] asc)
create table SECRET_LEV ([ID_SECRET_LEV] int, [SECRET_LEV] nvarchar(30))
update SECRET_LEV set [ID_SECRET_LEV]=0 where [ID_SECRET_LEV] is null
if exists(select * from sysindexes where name = 'CUR_SECRET_LEVPrimaryKey') alter table SECRET_LEV drop constraint CUR_SECRET_LEVPrimaryKey
alter table SECRET_LEV alter column [ID_SECRET_LEV] int not null
alter table SECRET_LEV add constraint [DEFVAL_SECRET_LEVID_SECRET_LEV] default 0 for [ID_SECRET_LEV]
if not exists(select * from sys.indexes where object_id = object_id('SECRET_LEV') and name='CUR_SECRET_LEVPrimaryKey') alter table SECRET_LEV add constraint CUR_SECRET_LEVPrimaryKey primary key ([ID_SECRET_LEV] asc)
if not exists(select * from sys.indexes where object_id = object_id('SECRET_LEV') and name='ID_SECRET_LEV') create index ID_SECRET_LEV on SECRET_LEV ([ID_SECRET_LEV] asc)
create table SYS_FIRMA_CONTESTUALE ([SYS_SERIALE] nvarchar(16), [SYS_RECORD] int, [SYS_SAVED] bit, [PC_UTENTE] nvarchar(50))
update SYS_FIRMA_CONTESTUALE set [SYS_RECORD]=0 where [SYS_RECORD] is null
update SYS_FIRMA_CONTESTUALE set [SYS_SAVED]=0 where [SYS_SAVED] is null
if exists(select * from sysindexes where name = 'CUR_SYS_FIRMA_CONTESTUALEPrimaryKey') alter table SYS_FIRMA_CONTESTUALE drop constraint CUR_SYS_FIRMA_CONTESTUALEPrimaryKey
alter table SYS_FIRMA_CONTESTUALE alter column [SYS_SERIALE] nvarchar(16) not null
alter table SYS_FIRMA_CONTESTUALE alter column [SYS_RECORD] int not null
alter table SYS_FIRMA_CONTESTUALE add constraint [DEFVAL_SYS_FIRMA_CONTESTUALESYS_RECORD] default 0 for [SYS_RECORD]
alter table SYS_FIRMA_CONTESTUALE add constraint [DEFVAL_SYS_FIRMA_CONTESTUALESYS_SAVED] default 0 for [SYS_SAVED]
if not exists(select * from sys.indexes where object_id = object_id('SYS_FIRMA_CONTESTUALE') and name='CUR_SYS_FIRMA_CONTESTUALEPrimaryKey') alter table SYS_FIRMA_CONTESTUALE add constraint CUR_SYS_FIRMA_CONTESTUALEPrimaryKey primary key ([SYS_SERIALE] asc, [SYS_RECORD] asc)
create table SYS_INTERMEDIARI ([COD_INT] int, [DESCRIZIONE] nvarchar(30))
update SYS_INTERMEDIARI set [COD_INT]=0 where [COD_INT] is null
if exists(select * from sysindexes where name = 'CUR_SYS_INTERMEDIARIPrimaryKey') alter table SYS_INTERMEDIARI drop constraint CUR_SYS_INTERMEDIARIPrimaryKey
alter table SYS_INTERMEDIARI alter column [COD_INT] int not null
alter table SYS_INTERMEDIARI add constraint [DEFVAL_SYS_INTERMEDIARICOD_INT] default 0 for [COD_INT]
if not exists(select * from sys.indexes where object_id = object_id('SYS_INTERMEDIARI') and name='CUR_SYS_INTERMEDIARIPrimaryKey') alter table SYS_INTERMEDIARI add constraint CUR_SYS_INTERMEDIARIPrimaryKey primary key ([COD_INT] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_INTERMEDIARI') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_INTERMEDIARI ([COD_INT] asc)
create table SYS_LOG ([ID_LOG] int not null identity(1, 1), [DATA] datetime not null, [HOST] nvarchar(50) not null, [UTENTE] nvarchar(25) not null, [DESCRIZIONE] nvarchar(255) not null, [SERIALE] nvarchar(16), [RECORD] int, [FILENAME] nvarchar(100))
update SYS_LOG set [HOST]='' where [HOST] is null
update SYS_LOG set [UTENTE]='' where [UTENTE] is null
update SYS_LOG set [DESCRIZIONE]='' where [DESCRIZIONE] is null
update SYS_LOG set [RECORD]=0 where [RECORD] is null
if exists(select * from sysindexes where name = 'CUR_SYS_LOGPrimaryKey') alter table SYS_LOG drop constraint CUR_SYS_LOGPrimaryKey
alter table SYS_LOG alter column [HOST] nvarchar(50) not null
alter table SYS_LOG alter column [UTENTE] nvarchar(25) not null
alter table SYS_LOG alter column [DESCRIZIONE] nvarchar(255) not null
alter table SYS_LOG alter column [ID_LOG] int not null
alter table SYS_LOG add constraint [DEFVAL_SYS_LOGHOST] default '' for [HOST]
alter table SYS_LOG add constraint [DEFVAL_SYS_LOGUTENTE] default '' for [UTENTE]
alter table SYS_LOG add constraint [DEFVAL_SYS_LOGDESCRIZIONE] default '' for [DESCRIZIONE]
alter table SYS_LOG add constraint [DEFVAL_SYS_LOGRECORD] default 0 for [RECORD]
if not exists(select * from sys.indexes where object_id = object_id('SYS_LOG') and name='CUR_SYS_LOGPrimaryKey') alter table SYS_LOG add constraint CUR_SYS_LOGPrimaryKey primary key ([ID_LOG] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_LOG') and name='ID_LOG') create index ID_LOG on SYS_LOG ([ID_LOG] asc)
create table SYS_PROCEDURE ([ID_Proc] int not null identity(1, 1), [Procedura] nvarchar(100), [Cartella] nvarchar(200), [PrefissoFile] nvarchar(8), [ScheduleTask] bit, [FileExport] bit, [FileName] int, [CampiExport] nvarchar(max), [IDFilter] int)
update SYS_PROCEDURE set [ScheduleTask]=0 where [ScheduleTask] is null
update SYS_PROCEDURE set [FileExport]=0 where [FileExport] is null
update SYS_PROCEDURE set [IDFilter]=0 where [IDFilter] is null
if exists(select * from sysindexes where name = 'CUR_SYS_PROCEDUREPrimaryKey') alter table SYS_PROCEDURE drop constraint CUR_SYS_PROCEDUREPrimaryKey
alter table SYS_PROCEDURE alter column [ID_Proc] int not null
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREScheduleTask] default 0 for [ScheduleTask]
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREFileExport] default 0 for [FileExport]
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREIDFilter] default 0 for [IDFilter]
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE') and name='CUR_SYS_PROCEDUREPrimaryKey') alter table SYS_PROCEDURE add constraint CUR_SYS_PROCEDUREPrimaryKey primary key ([ID_Proc] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE ([ID_Proc] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE') and name='IDFilter') create index IDFilter on SYS_PROCEDURE ([IDFilter] asc)
create table SYS_PROCEDURE_DB ([ID_Proc] int, [SYS_SERIALE] nvarchar(16))
update SYS_PROCEDURE_DB set [ID_Proc]=0 where [ID_Proc] is null
if exists(select * from sysindexes where name = 'CUR_SYS_PROCEDURE_DBPrimaryKey') alter table SYS_PROCEDURE_DB drop constraint CUR_SYS_PROCEDURE_DBPrimaryKey
alter table SYS_PROCEDURE_DB alter column [ID_Proc] int not null
alter table SYS_PROCEDURE_DB alter column [SYS_SERIALE] nvarchar(16) not null
alter table SYS_PROCEDURE_DB add constraint [DEFVAL_SYS_PROCEDURE_DBID_Proc] default 0 for [ID_Proc]
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB') and name='CUR_SYS_PROCEDURE_DBPrimaryKey') alter table SYS_PROCEDURE_DB add constraint CUR_SYS_PROCEDURE_DBPrimaryKey primary key ([ID_Proc] asc, [SYS_SERIALE] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE_DB ([ID_Proc] asc)
create table SYS_PROCEDURE_DB_EXPORT ([ID_Proc] int, [SYS_SERIALE] nvarchar(16), [SYS_RECORD] int, [Data] datetime, [Ora] datetime, [ID_Utente] int, [Registrato] bit)
update SYS_PROCEDURE_DB_EXPORT set [ID_Proc]=0 where [ID_Proc] is null
update SYS_PROCEDURE_DB_EXPORT set [SYS_RECORD]=0 where [SYS_RECORD] is null
update SYS_PROCEDURE_DB_EXPORT set [ID_Utente]=0 where [ID_Utente] is null
update SYS_PROCEDURE_DB_EXPORT set [Registrato]=0 where [Registrato] is null
if exists(select * from sysindexes where name = 'CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey') alter table SYS_PROCEDURE_DB_EXPORT drop constraint CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey
alter table SYS_PROCEDURE_DB_EXPORT alter column [ID_Proc] int not null
alter table SYS_PROCEDURE_DB_EXPORT alter column [SYS_SERIALE] nvarchar(16) not null
alter table SYS_PROCEDURE_DB_EXPORT alter column [SYS_RECORD] int not null
alter table SYS_PROCEDURE_DB_EXPORT add constraint [DEFVAL_SYS_PROCEDURE_DB_EXPORTID_Proc] default 0 for [ID_Proc]
alter table SYS_PROCEDURE_DB_EXPORT add constraint [DEFVAL_SYS_PROCEDURE_DB_EXPORTSYS_RECORD] default 0 for [SYS_RECORD]
alter table SYS_PROCEDURE_DB_EXPORT add constraint [DEFVAL_SYS_PROCEDURE_DB_EXPORTID_Utente] default 0 for [ID_Utente]
alter table SYS_PROCEDURE_DB_EXPORT add constraint [DEFVAL_SYS_PROCEDURE_DB_EXPORTRegistrato] default 0 for [Registrato]
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey') alter table SYS_PROCEDURE_DB_EXPORT add constraint CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey primary key ([ID_Proc] asc, [SYS_SERIALE] asc, [SYS_RECORD] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE_DB_EXPORT ([ID_Proc] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='ID_Utente') create index ID_Utente on SYS_PROCEDURE_DB_EXPORT ([ID_Utente] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='SYS_RECORD') create index SYS_RECORD on SYS_PROCEDURE_DB_EXPORT ([SYS_RECORD] asc)
create table SYS_REGISTRI ([COD_REG] int, [DESCRIZIONE] nvarchar(30))
update SYS_REGISTRI set [COD_REG]=0 where [COD_REG] is null
if exists(select * from sysindexes where name = 'CUR_SYS_REGISTRIPrimaryKey') alter table SYS_REGISTRI drop constraint CUR_SYS_REGISTRIPrimaryKey
alter table SYS_REGISTRI alter column [COD_REG] int not null
alter table SYS_REGISTRI add constraint [DEFVAL_SYS_REGISTRICOD_REG] default 0 for [COD_REG]
if not exists(select * from sys.indexes where object_id = object_id('SYS_REGISTRI') and name='CUR_SYS_REGISTRIPrimaryKey') alter table SYS_REGISTRI add constraint CUR_SYS_REGISTRIPrimaryKey primary key ([COD_REG] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_REGISTRI') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_REGISTRI ([COD_REG] asc)
create table SYS_TATD ([ID_TIPOARC] int, [ID_TIPODOC] int)
update SYS_TATD set [ID_TIPOARC]=0 where [ID_TIPOARC] is null
update SYS_TATD set [ID_TIPODOC]=0 where [ID_TIPODOC] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TATDPrimaryKey') alter table SYS_TATD drop constraint CUR_SYS_TATDPrimaryKey
alter table SYS_TATD alter column [ID_TIPOARC] int not null
alter table SYS_TATD alter column [ID_TIPODOC] int not null
alter table SYS_TATD add constraint [DEFVAL_SYS_TATDID_TIPOARC] default 0 for [ID_TIPOARC]
alter table SYS_TATD add constraint [DEFVAL_SYS_TATDID_TIPODOC] default 0 for [ID_TIPODOC]
if not exists(select * from sys.indexes where object_id = object_id('SYS_TATD') and name='CUR_SYS_TATDPrimaryKey') alter table SYS_TATD add constraint CUR_SYS_TATDPrimaryKey primary key ([ID_TIPOARC] asc, [ID_TIPODOC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TATD') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_TATD ([ID_TIPOARC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TATD') and name='ID_TIPODOC') create index ID_TIPODOC on SYS_TATD ([ID_TIPODOC] asc)
create table SYS_TIPO_ARC ([ID_TIPOARC] int, [DESCRIZIONE] nvarchar(50))
update SYS_TIPO_ARC set [ID_TIPOARC]=0 where [ID_TIPOARC] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_ARCPrimaryKey') alter table SYS_TIPO_ARC drop constraint CUR_SYS_TIPO_ARCPrimaryKey
alter table SYS_TIPO_ARC alter column [ID_TIPOARC] int not null
alter table SYS_TIPO_ARC add constraint [DEFVAL_SYS_TIPO_ARCID_TIPOARC] default 0 for [ID_TIPOARC]
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_ARC') and name='CUR_SYS_TIPO_ARCPrimaryKey') alter table SYS_TIPO_ARC add constraint CUR_SYS_TIPO_ARCPrimaryKey primary key ([ID_TIPOARC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_ARC') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_TIPO_ARC ([ID_TIPOARC] asc)
create table SYS_TIPO_DOC_F ([ID_TIPODOC] int, [DESCRIZIONE] nvarchar(255), [RAGGRUPPAMENTO] nvarchar(15), [ID_TDOC_TRIB] int, [Cod_tipo_CCT] nvarchar(15), [BARCODE_LBL] bit)
update SYS_TIPO_DOC_F set [ID_TIPODOC]=0 where [ID_TIPODOC] is null
update SYS_TIPO_DOC_F set [BARCODE_LBL]=0 where [BARCODE_LBL] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_DOC_FPrimaryKey') alter table SYS_TIPO_DOC_F drop constraint CUR_SYS_TIPO_DOC_FPrimaryKey
alter table SYS_TIPO_DOC_F alter column [ID_TIPODOC] int not null
alter table SYS_TIPO_DOC_F add constraint [DEFVAL_SYS_TIPO_DOC_FID_TIPODOC] default 0 for [ID_TIPODOC]
alter table SYS_TIPO_DOC_F add constraint [DEFVAL_SYS_TIPO_DOC_FBARCODE_LBL] default 0 for [BARCODE_LBL]
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_DOC_F') and name='CUR_SYS_TIPO_DOC_FPrimaryKey') alter table SYS_TIPO_DOC_F add constraint CUR_SYS_TIPO_DOC_FPrimaryKey primary key ([ID_TIPODOC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_DOC_F') and name='ID_TIPODOC') create index ID_TIPODOC on SYS_TIPO_DOC_F ([ID_TIPODOC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_DOC_F') and name='SYS_TIPO_DOC_FCod_tipo_CCT') create index SYS_TIPO_DOC_FCod_tipo_CCT on SYS_TIPO_DOC_F ([Cod_tipo_CCT] asc)
create table SYS_TIPO_DOC_TRIB ([ID_TDOC_TRIB] int, [DESCRIZIONE] nvarchar(255))
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_DOC_TRIBPrimaryKey') alter table SYS_TIPO_DOC_TRIB drop constraint CUR_SYS_TIPO_DOC_TRIBPrimaryKey
alter table SYS_TIPO_DOC_TRIB alter column [ID_TDOC_TRIB] int not null
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_DOC_TRIB') and name='CUR_SYS_TIPO_DOC_TRIBPrimaryKey') alter table SYS_TIPO_DOC_TRIB add constraint CUR_SYS_TIPO_DOC_TRIBPrimaryKey primary key ([ID_TDOC_TRIB] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_TIPO_DOC_TRIB') and name='ID_TDOC_TRIB') create index ID_TDOC_TRIB on SYS_TIPO_DOC_TRIB ([ID_TDOC_TRIB] asc)
create table SYS_XML_CAMPI ([ID_REC] int not null identity(1, 1), [XML_CAMPOSCHEMA] nvarchar(50) not null, [XML_CAMPODB] nvarchar(255), [RAGGRUPPAMENTO] nvarchar(20))
update SYS_XML_CAMPI set [XML_CAMPOSCHEMA]='' where [XML_CAMPOSCHEMA] is null
if exists(select * from sysindexes where name = 'CUR_SYS_XML_CAMPIPrimaryKey') alter table SYS_XML_CAMPI drop constraint CUR_SYS_XML_CAMPIPrimaryKey
alter table SYS_XML_CAMPI alter column [XML_CAMPOSCHEMA] nvarchar(50) not null
alter table SYS_XML_CAMPI alter column [XML_CAMPOSCHEMA] nvarchar(50) not null
alter table SYS_XML_CAMPI alter column [XML_CAMPODB] nvarchar(255) not null
alter table SYS_XML_CAMPI alter column [ID_REC] int not null
alter table SYS_XML_CAMPI add constraint [DEFVAL_SYS_XML_CAMPIXML_CAMPOSCHEMA] default '' for [XML_CAMPOSCHEMA]
if not exists(select * from sys.indexes where object_id = object_id('SYS_XML_CAMPI') and name='CUR_SYS_XML_CAMPIPrimaryKey') alter table SYS_XML_CAMPI add constraint CUR_SYS_XML_CAMPIPrimaryKey primary key ([ID_REC] asc)
if not exists(select * from sys.indexes where object_id = object_id('SYS_XML_CAMPI') and name='IDX_ASSOC') create unique index IDX_ASSOC on SYS_XML_CAMPI ([XML_CAMPOSCHEMA] asc, [XML_CAMPODB] asc)
create table TipoElab ([IDTipoFCom] int not null identity(1, 1), [Definizione] nvarchar(50))
if exists(select * from sysindexes where name = 'CUR_TipoElabPrimaryKey') alter table TipoElab drop constraint CUR_TipoElabPrimaryKey
alter table TipoElab alter column [IDTipoFCom] int not null
if not exists(select * from sys.indexes where object_id = object_id('TipoElab') and name='CUR_TipoElabPrimaryKey') alter table TipoElab add constraint CUR_TipoElabPrimaryKey primary key ([IDTipoFCom] asc)
if not exists(select * from sys.indexes where object_id = object_id('TipoElab') and name='IDTipoFCom') create index IDTipoFCom on TipoElab ([IDTipoFCom] asc)
create table UTENTE_GRUPPI ([ID_UTENTE] int not null, [ID_GRUPPO] int not null)
if exists(select * from sysindexes where name = 'CUR_UTENTE_GRUPPIUTENTE_GRUPPO') alter table UTENTE_GRUPPI drop constraint CUR_UTENTE_GRUPPIUTENTE_GRUPPO
alter table UTENTE_GRUPPI alter column [ID_UTENTE] int not null
alter table UTENTE_GRUPPI alter column [ID_GRUPPO] int not null
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_GRUPPI') and name='CUR_UTENTE_GRUPPIUTENTE_GRUPPO') alter table UTENTE_GRUPPI add constraint CUR_UTENTE_GRUPPIUTENTE_GRUPPO primary key ([ID_UTENTE] asc, [ID_GRUPPO] asc)
create table UTENTE_INTERMEDIARI ([ID_UTENTE] int not null, [ID_ANAG] int not null)
update UTENTE_INTERMEDIARI set [ID_UTENTE]=0 where [ID_UTENTE] is null
update UTENTE_INTERMEDIARI set [ID_ANAG]=0 where [ID_ANAG] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_INTERMEDIARIUTENTE_INT') alter table UTENTE_INTERMEDIARI drop constraint CUR_UTENTE_INTERMEDIARIUTENTE_INT
alter table UTENTE_INTERMEDIARI alter column [ID_UTENTE] int not null
alter table UTENTE_INTERMEDIARI alter column [ID_ANAG] int not null
alter table UTENTE_INTERMEDIARI add constraint [DEFVAL_UTENTE_INTERMEDIARIID_UTENTE] default 0 for [ID_UTENTE]
alter table UTENTE_INTERMEDIARI add constraint [DEFVAL_UTENTE_INTERMEDIARIID_ANAG] default 0 for [ID_ANAG]
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_INTERMEDIARI') and name='CUR_UTENTE_INTERMEDIARIUTENTE_INT') alter table UTENTE_INTERMEDIARI add constraint CUR_UTENTE_INTERMEDIARIUTENTE_INT primary key ([ID_UTENTE] asc, [ID_ANAG] asc)
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_INTERMEDIARI') and name='ID_ANAG') create index ID_ANAG on UTENTE_INTERMEDIARI ([ID_ANAG] asc)
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_INTERMEDIARI') and name='ID_UTENTE') create index ID_UTENTE on UTENTE_INTERMEDIARI ([ID_UTENTE] asc)
create table UTENTE_PERMESSI ([ID_UTENTE] int not null, [ID_PERMESSO] int not null)
if exists(select * from sysindexes where name = 'CUR_UTENTE_PERMESSIUTENTE_PERMESSO') alter table UTENTE_PERMESSI drop constraint CUR_UTENTE_PERMESSIUTENTE_PERMESSO
alter table UTENTE_PERMESSI alter column [ID_UTENTE] int not null
alter table UTENTE_PERMESSI alter column [ID_PERMESSO] int not null
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_PERMESSI') and name='CUR_UTENTE_PERMESSIUTENTE_PERMESSO') alter table UTENTE_PERMESSI add constraint CUR_UTENTE_PERMESSIUTENTE_PERMESSO primary key ([ID_UTENTE] asc, [ID_PERMESSO] asc)
create table UTENTE_PROFILO ([ID_UTENTE] int not null, [SYS_SERIALE] nvarchar(16) not null, [PROFILO] nvarchar(max))
update UTENTE_PROFILO set [ID_UTENTE]=0 where [ID_UTENTE] is null
update UTENTE_PROFILO set [SYS_SERIALE]='' where [SYS_SERIALE] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_PROFILOUTENTE_PROFILO') alter table UTENTE_PROFILO drop constraint CUR_UTENTE_PROFILOUTENTE_PROFILO
alter table UTENTE_PROFILO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_PROFILO alter column [ID_UTENTE] int not null
alter table UTENTE_PROFILO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_PROFILO add constraint [DEFVAL_UTENTE_PROFILOID_UTENTE] default 0 for [ID_UTENTE]
alter table UTENTE_PROFILO add constraint [DEFVAL_UTENTE_PROFILOSYS_SERIALE] default '' for [SYS_SERIALE]
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_PROFILO') and name='CUR_UTENTE_PROFILOUTENTE_PROFILO') alter table UTENTE_PROFILO add constraint CUR_UTENTE_PROFILOUTENTE_PROFILO primary key ([ID_UTENTE] asc, [SYS_SERIALE] asc)
create table UTENTE_STORICO ([ID_UTENTE] int, [SYS_SERIALE] nvarchar(16), [REVISORE] bit, [CERTIFICATORE] bit, [CONTROLLORE] bit)
update UTENTE_STORICO set [REVISORE]=0 where [REVISORE] is null
update UTENTE_STORICO set [CERTIFICATORE]=0 where [CERTIFICATORE] is null
update UTENTE_STORICO set [CONTROLLORE]=0 where [CONTROLLORE] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_STORICOUTENTE_STORICO') alter table UTENTE_STORICO drop constraint CUR_UTENTE_STORICOUTENTE_STORICO
alter table UTENTE_STORICO alter column [ID_UTENTE] int not null
alter table UTENTE_STORICO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOREVISORE] default 0 for [REVISORE]
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOCERTIFICATORE] default 0 for [CERTIFICATORE]
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOCONTROLLORE] default 0 for [CONTROLLORE]
if not exists(select * from sys.indexes where object_id = object_id('UTENTE_STORICO') and name='CUR_UTENTE_STORICOUTENTE_STORICO') alter table UTENTE_STORICO add constraint CUR_UTENTE_STORICOUTENTE_STORICO primary key ([ID_UTENTE] asc, [SYS_SERIALE] asc)
create table UTENTI ([ID_UTENTE] int not null identity(1, 1), [UTENTE] nvarchar(25) not null, [UTENTE_COMPLETO] nvarchar(40) not null, [PASSWORD] nvarchar(25), [ADMIN] bit, [SICUREZZA] int, [AIPA_COGNOME] nvarchar(50), [AIPA_NOME] nvarchar(50), [AIPA_COD_FISCALE] nvarchar(16), [AIPA_DATA_NASCITA] datetime, [AIPA_LOCALITA_NASCITA] nvarchar(100), [AIPA_PROV_NASCITA] nvarchar(2), [AIPA_STATO_NASCITA] nvarchar(50), [AIPA_LOCALITA_RESIDENZA] nvarchar(100), [AIPA_INDIRIZZO_RESIDENZA] nvarchar(100), [AIPA_PROV_RESIDENZA] nvarchar(2), [AIPA_CAP_RESIDENZA] nvarchar(5), [AIPA_RESPONSABILE] bit, [AIPA_INCARICO_AZIENDALE] nvarchar(100), [AIPA_INIZIO_INCARICO] datetime, [AIPA_FINE_INCARICO] datetime, [AIPA_FIRMA_Q_ABILE] bit, [AIPA_FIRMA_S_ABILE] bit, [AIPA_ORGANIZZAZIONE] nvarchar(100), [AIPA_CERT_STORE] nvarchar(max), [AIPA_CERT_Q_DEFAULT] nvarchar(max), [AIPA_CERT_S_DEFAULT] nvarchar(max), [AIPA_SYS_INFO_OK] bit, [EMAIL] nvarchar(255), [SECRET_KEY] int, [USID] nvarchar(100), [SYS_WEB] bit, [SYS_LASTVIEWUPD] datetime)
update UTENTI set [UTENTE]='' where [UTENTE] is null
update UTENTI set [UTENTE_COMPLETO]='' where [UTENTE_COMPLETO] is null
update UTENTI set [ADMIN]=0 where [ADMIN] is null
update UTENTI set [AIPA_RESPONSABILE]=0 where [AIPA_RESPONSABILE] is null
update UTENTI set [AIPA_FIRMA_Q_ABILE]=0 where [AIPA_FIRMA_Q_ABILE] is null
update UTENTI set [AIPA_FIRMA_S_ABILE]=0 where [AIPA_FIRMA_S_ABILE] is null
update UTENTI set [AIPA_SYS_INFO_OK]=0 where [AIPA_SYS_INFO_OK] is null
update UTENTI set [SECRET_KEY]=0 where [SECRET_KEY] is null
update UTENTI set [SYS_WEB]=0 where [SYS_WEB] is null
if exists(select * from sysindexes where name = 'CUR_UTENTIID_UTENTE') alter table UTENTI drop constraint CUR_UTENTIID_UTENTE
alter table UTENTI alter column [UTENTE] nvarchar(25) not null
alter table UTENTI alter column [UTENTE_COMPLETO] nvarchar(40) not null
alter table UTENTI alter column [ID_UTENTE] int not null
alter table UTENTI alter column [UTENTE] nvarchar(25) not null
alter table UTENTI add constraint [DEFVAL_UTENTIUTENTE] default '' for [UTENTE]
alter table UTENTI add constraint [DEFVAL_UTENTIUTENTE_COMPLETO] default '' for [UTENTE_COMPLETO]
alter table UTENTI add constraint [DEFVAL_UTENTIADMIN] default 0 for [ADMIN]
alter table UTENTI add constraint [DEFVAL_UTENTIAIPA_RESPONSABILE] default 0 for [AIPA_RESPONSABILE]
alter table UTENTI add constraint [DEFVAL_UTENTIAIPA_FIRMA_Q_ABILE] default 0 for [AIPA_FIRMA_Q_ABILE]
alter table UTENTI add constraint [DEFVAL_UTENTIAIPA_FIRMA_S_ABILE] default 0 for [AIPA_FIRMA_S_ABILE]
alter table UTENTI add constraint [DEFVAL_UTENTIAIPA_SYS_INFO_OK] default 0 for [AIPA_SYS_INFO_OK]
alter table UTENTI add constraint [DEFVAL_UTENTISECRET_KEY] default 0 for [SECRET_KEY]
alter table UTENTI add constraint [DEFVAL_UTENTISYS_WEB] default 0 for [SYS_WEB]
if not exists(select * from sys.indexes where object_id = object_id('UTENTI') and name='CUR_UTENTIID_UTENTE') alter table UTENTI add constraint CUR_UTENTIID_UTENTE primary key ([ID_UTENTE] asc)
if not exists(select * from sys.indexes where object_id = object_id('UTENTI') and name='UTENTE') create unique index UTENTE on UTENTI ([UTENTE] asc)
create table Valori ([IDValori] int not null identity(1, 1), [IDDefSucc] int, [LEFT] int, [TOP] int, [RIGHT] int, [BOTTOM] int, [Valore] nvarchar(50), [Azione] nvarchar(50), [Campo_da_Compilare] nvarchar(50), [Tipo_Dato] bit, [Base] nvarchar(255), [Penna] bit, [ContatorePg] bit, [LarghezzaCar] int, [AltezzaCar] int)
update Valori set [Tipo_Dato]=0 where [Tipo_Dato] is null
update Valori set [Penna]=0 where [Penna] is null
update Valori set [ContatorePg]=0 where [ContatorePg] is null
if exists(select * from sysindexes where name = 'CUR_ValoriPrimaryKey') alter table Valori drop constraint CUR_ValoriPrimaryKey
alter table Valori alter column [IDValori] int not null
alter table Valori add constraint [DEFVAL_ValoriTipo_Dato] default 0 for [Tipo_Dato]
alter table Valori add constraint [DEFVAL_ValoriPenna] default 0 for [Penna]
alter table Valori add constraint [DEFVAL_ValoriContatorePg] default 0 for [ContatorePg]
if not exists(select * from sys.indexes where object_id = object_id('Valori') and name='CUR_ValoriPrimaryKey') alter table Valori add constraint CUR_ValoriPrimaryKey primary key ([IDValori] asc)
if not exists(select * from sys.indexes where object_id = object_id('Valori') and name='IDDefCom') create index IDDefCom on Valori ([IDDefSucc] asc)
if not exists(select * from sys.indexes where object_id = object_id('Valori') and name='IDDefSuss') create index IDDefSuss on Valori ([IDValori] asc)
create table VOLUMI ([SYS_CAT_DISCO] nvarchar(16) not null, [SYS_CAT_PATH] nvarchar(255), [SYS_CAT_DESCR] nvarchar(100), [SYS_CAT_SIZE] float not null, [SYS_CAT_FREE] float, [FLAG_PATH_ERR] bit)
update VOLUMI set [SYS_CAT_DISCO]='' where [SYS_CAT_DISCO] is null
update VOLUMI set [SYS_CAT_SIZE]=0 where [SYS_CAT_SIZE] is null
update VOLUMI set [SYS_CAT_FREE]=0 where [SYS_CAT_FREE] is null
update VOLUMI set [FLAG_PATH_ERR]=0 where [FLAG_PATH_ERR] is null
if exists(select * from sysindexes where name = 'CUR_VOLUMISYS_CAT_DISCO') alter table VOLUMI drop constraint CUR_VOLUMISYS_CAT_DISCO
alter table VOLUMI alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI add constraint [DEFVAL_VOLUMISYS_CAT_DISCO] default '' for [SYS_CAT_DISCO]
alter table VOLUMI add constraint [DEFVAL_VOLUMISYS_CAT_SIZE] default 0 for [SYS_CAT_SIZE]
alter table VOLUMI add constraint [DEFVAL_VOLUMISYS_CAT_FREE] default 0 for [SYS_CAT_FREE]
alter table VOLUMI add constraint [DEFVAL_VOLUMIFLAG_PATH_ERR] default 0 for [FLAG_PATH_ERR]
if not exists(select * from sys.indexes where object_id = object_id('VOLUMI') and name='CUR_VOLUMISYS_CAT_DISCO') alter table VOLUMI add constraint CUR_VOLUMISYS_CAT_DISCO primary key ([SYS_CAT_DISCO] asc)
create table VOLUMI_PC ([COMPUTER] nvarchar(255) not null, [SYS_CAT_DISCO] nvarchar(16) not null, [SYS_CAT_PATH] nvarchar(255))
update VOLUMI_PC set [COMPUTER]='' where [COMPUTER] is null
update VOLUMI_PC set [SYS_CAT_DISCO]='' where [SYS_CAT_DISCO] is null
if exists(select * from sysindexes where name = 'CUR_VOLUMI_PCTESSEMASTER') alter table VOLUMI_PC drop constraint CUR_VOLUMI_PCTESSEMASTER
alter table VOLUMI_PC alter column [COMPUTER] nvarchar(255) not null
alter table VOLUMI_PC alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI_PC alter column [COMPUTER] nvarchar(255) not null
alter table VOLUMI_PC alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI_PC add constraint [DEFVAL_VOLUMI_PCCOMPUTER] default '' for [COMPUTER]
alter table VOLUMI_PC add constraint [DEFVAL_VOLUMI_PCSYS_CAT_DISCO] default '' for [SYS_CAT_DISCO]
if not exists(select * from sys.indexes where object_id = object_id('VOLUMI_PC') and name='CUR_VOLUMI_PCTESSEMASTER') alter table VOLUMI_PC add constraint CUR_VOLUMI_PCTESSEMASTER primary key ([COMPUTER] asc, [SYS_CAT_DISCO] asc)
alter table AGEN_DBDELEGATI add constraint FISCO_ANAGRAFICHEAGEN_DBDELEGATI foreign key (ID_ANAG_DELEG) references FISCO_ANAGRAFICHE (ContribuenteCodice) on delete cascade
alter table AGEN_LUOGHICONS add constraint FISCO_ANAGRAFICHEAGEN_LUOGHICONS foreign key (IDAnagContr) references FISCO_ANAGRAFICHE (ContribuenteCodice) on delete cascade
alter table Anag_AnagraficaExt add constraint Anag_01_AnagraficaAnag_AnagraficaExt foreign key (GUID_Anag) references Anag_01_Anagrafica (GUID) on delete cascade
alter table Anag_Attivita add constraint Anag_01_AnagraficaAnag_Attivita foreign key (GUID_Anag) references Anag_01_Anagrafica (GUID) on delete cascade
alter table Anag_Cert add constraint Anag_UtentiAnag_Cert foreign key (GUID_Utente) references Anag_Utenti (GUID) on delete cascade
alter table Anag_Indirizzi add constraint Anag_01_AnagraficaAnag_Indirizzi foreign key (GUID_Anag) references Anag_01_Anagrafica (GUID) on delete cascade
alter table Anag_PercorsiFile add constraint Anag_01_AnagraficaAnag_PercorsiFile foreign key (GUID_Anag) references Anag_01_Anagrafica (GUID) on delete cascade
alter table Anag_PercorsiFile add constraint Anag_ProcedureAnag_PercorsiFile foreign key (Cod_Proc) references Anag_Procedure (Cod_Proc) on delete cascade
alter table Anag_ProcCodici add constraint Anag_01_AnagraficaAnag_ProcCodici foreign key (GUID_Anag) references Anag_01_Anagrafica (GUID) on delete cascade
alter table Anag_ProcCodici add constraint Anag_ProcedureAnag_ProcCodici foreign key (Cod_Proc) references Anag_Procedure (Cod_Proc) on delete cascade
alter table ARCHI_FAX add constraint DB_ELENCOARCHI_FAX foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table ARCHI_PRINT add constraint DB_ELENCOARCHI_PRINT foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table CampiElab add constraint DefFComCampiElab foreign key (IDProc) references DefFCom (IDProcesso) on delete cascade on update cascade
alter table Correlazioni add constraint DefSuccCorrelazioni foreign key (IDDefSucc) references DefSucc (IDDefSucc) on delete cascade on update cascade
alter table DB_DIZIONARIO_LINK add constraint DB_DIZIONARIODB_DIZIONARIO_LINK foreign key (ID_DIZIONARIO) references DB_DIZIONARIO (ID_DIZIONARIO) on delete cascade
alter table DB_DIZIONARIO_LINK add constraint DB_ELENCODB_DIZIONARIO_LINK foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK foreign key (DB_PAR_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_DOC_LINK add constraint DB_ELENCODB_DOC_LINK1 foreign key (DB_SON_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_DOSSIER_LINK add constraint DB_ELENCODB_DOSSIER_LINK foreign key (SYS_DS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_DOSSIER_LINK add constraint DB_ELENCODB_DOSSIER_LINK1 foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_ELENCO_PC add constraint DB_ELENCODB_ELENCO_PC foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_PERMESSI add constraint DB_ELENCODB_PERMESSI foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_PERMESSI add constraint PERMESSIDB_PERMESSI foreign key (ID_PERMESSO) references PERMESSI (ID_PERMESSO) on delete cascade
alter table DB_QUERYUTENTI add constraint DB_QUERYDB_QUERYUTENTI foreign key (ID_QUERY) references DB_QUERY (ID_QUERY) on delete cascade
alter table DB_QUERYUTENTI add constraint UTENTIDB_QUERYUTENTI foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table DB_SECRET_ADMINS add constraint DB_ELENCODB_SECRET_ADMINS foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_SECRET_ADMINS add constraint UTENTIDB_SECRET_ADMINS foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table DB_STORICO_DOC add constraint DB_ELENCODB_STORICO_DOC foreign key (SYS_SERIALE_SON) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_STORICO_DOC add constraint DB_ELENCODB_STORICO_DOC1 foreign key (SYS_SERIALE_PAR) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_STORICO_LINK add constraint DB_ELENCODB_STORICO_LINK foreign key (SYS_SERIALE_SON) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DB_STORICO_LINK add constraint DB_ELENCODB_STORICO_LINK1 foreign key (SYS_SERIALE_PAR) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DefFCom add constraint TipoElabDefFCom foreign key (IdTipoFProc) references TipoElab (IDTipoFCom) on delete cascade on update cascade
alter table DefSucc add constraint TipoElabDefSucc foreign key (TipoElabora) references TipoElab (IDTipoFCom) on delete cascade on update cascade
alter table DOC_NOTIFICHE add constraint DB_ELENCODOC_NOTIFICHE foreign key (SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table DOC_PROCEDIMENTI add constraint DB_ELENCODOC_PROCEDIMENTI foreign key (SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table FISCO_ANAG_PERCORSI add constraint FISCO_ANAGRAFICHEFISCO_ANAG_PERCORSI foreign key (ID_Anag) references FISCO_ANAGRAFICHE (ContribuenteCodice) on delete cascade
alter table FISCO_ANAG_PERCORSI add constraint FISCO_SEZIONALIFISCO_ANAG_PERCORSI foreign key (ID_Sez) references FISCO_SEZIONALI (IDRec) on delete cascade
alter table FISCO_ANAG_SEZIO add constraint FISCO_ANAGRAFICHEFISCO_ANAG_SEZIO foreign key (ID_Anag) references FISCO_ANAGRAFICHE (ContribuenteCodice) on delete cascade
alter table FISCO_ANAG_SEZIO add constraint FISCO_SEZIONALIFISCO_ANAG_SEZIO foreign key (ID_Sezio) references FISCO_SEZIONALI (IDRec) on delete cascade
alter table JoinOnly add constraint DefFComJoinOnly foreign key (IDProc) references DefFCom (IDProcesso) on delete cascade on update cascade
alter table PROCESSO_CAMPI add constraint PROCESSIPROCESSO_CAMPI foreign key (ID_PROCESSO) references PROCESSI (ID_PROCESSO) on delete cascade
alter table PROCESSO_CAMPI_VALORE add constraint PROCESSO_CAMPIPROCESSO_CAMPI_VALORE foreign key (ID_CAMPI) references PROCESSO_CAMPI (ID_CAMPI) on delete cascade
alter table PROCESSO_COMPUTER add constraint PROCESSIPROCESSO_COMPUTER foreign key (ID_PROCESSO) references PROCESSI (ID_PROCESSO) on delete cascade
alter table PROCESSO_FUNZIONI add constraint PROCESSIPROCESSO_FUNZIONI foreign key (ID_PROCESSO) references PROCESSI (ID_PROCESSO) on delete cascade
alter table PROCESSO_LOTTI add constraint PROCESSIPROCESSO_LOTTI foreign key (ID_PROCESSO) references PROCESSI (ID_PROCESSO) on delete cascade
alter table PROCESSO_LOTTO_DOCUMENTI add constraint PROCESSO_LOTTIPROCESSO_LOTTO_DOCUMENTI foreign key (ID_LOTTO) references PROCESSO_LOTTI (ID_LOTTO) on delete cascade
alter table PROCESSO_MP add constraint PROCESSIPROCESSO_MP foreign key (ID_PROCESSO) references PROCESSI (ID_PROCESSO) on delete cascade
alter table SCHEMI add constraint DB_ELENCOSCHEMI foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table SYS_PROCEDURE_DB add constraint DB_ELENCOSYS_PROCEDURE_DB foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table SYS_PROCEDURE_DB add constraint SYS_PROCEDURESYS_PROCEDURE_DB foreign key (ID_Proc) references SYS_PROCEDURE (ID_Proc) on delete cascade
alter table SYS_PROCEDURE_DB_EXPORT add constraint DB_ELENCOSYS_PROCEDURE_DB_EXPORT foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table SYS_PROCEDURE_DB_EXPORT add constraint SYS_PROCEDURESYS_PROCEDURE_DB_EXPORT foreign key (ID_Proc) references SYS_PROCEDURE (ID_Proc) on delete cascade
alter table UTENTE_GRUPPI add constraint GRUPPIUTENTE_GRUPPI foreign key (ID_GRUPPO) references GRUPPI (ID_GRUPPO) on delete cascade
alter table UTENTE_GRUPPI add constraint UTENTIUTENTE_GRUPPI foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table UTENTE_PERMESSI add constraint PERMESSIUTENTE_PERMESSI foreign key (ID_PERMESSO) references PERMESSI (ID_PERMESSO) on delete cascade
alter table UTENTE_PERMESSI add constraint UTENTIUTENTE_PERMESSI foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table UTENTE_PROFILO add constraint DB_ELENCOUTENTE_PROFILO foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table UTENTE_PROFILO add constraint UTENTIUTENTE_PROFILO foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table UTENTE_STORICO add constraint DB_ELENCOUTENTE_STORICO foreign key (SYS_SERIALE) references DB_ELENCO (SYS_SERIALE) on delete cascade
alter table UTENTE_STORICO add constraint UTENTIUTENTE_STORICO foreign key (ID_UTENTE) references UTENTI (ID_UTENTE) on delete cascade
alter table Valori add constraint DefSuccValori foreign key (IDDefSucc) references DefSucc (IDDefSucc) on delete cascade on update cascade
alter table VOLUMI_PC add constraint VOLUMIVOLUMI_PC foreign key (SYS_CAT_DISCO) references VOLUMI (SYS_CAT_DISCO) on delete cascade
