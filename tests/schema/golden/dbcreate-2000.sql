create database QZ
catalog: append table AGEN_DBDELEGATI ([IDRec] 3 0, [ID_ANAG_DELEG] 3 0, [ID_ANAG_SOGG] 3 0, [FLAG_SOGGTRASM] 11 0, [SYS_SERIALE] 202 16)
update AGEN_DBDELEGATI set [FLAG_SOGGTRASM]=0 where [FLAG_SOGGTRASM] is null
if exists(select * from sysindexes where name = 'CUR_AGEN_DBDELEGATIPrimaryKey') alter table AGEN_DBDELEGATI drop constraint CUR_AGEN_DBDELEGATIPrimaryKey
alter table AGEN_DBDELEGATI alter column [IDRec] int not null
alter table AGEN_DBDELEGATI add constraint [DEFVAL_AGEN_DBDELEGATIFLAG_SOGGTRASM] default 0 for [FLAG_SOGGTRASM]
if not exists(select * from sysindexes where id = object_id('AGEN_DBDELEGATI') and name='CUR_AGEN_DBDELEGATIPrimaryKey') alter table AGEN_DBDELEGATI add constraint CUR_AGEN_DBDELEGATIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_DBDELEGATI') and name='ID_ANAG_DELEG') create index ID_ANAG_DELEG on AGEN_DBDELEGATI ([ID_ANAG_DELEG] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_DBDELEGATI') and name='ID_ANAG_SOGG') create index ID_ANAG_SOGG on AGEN_DBDELEGATI ([ID_ANAG_SOGG] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_DBDELEGATI') and name='IDRec') create index IDRec on AGEN_DBDELEGATI ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_DBDELEGATI') and name='SYS_SERIALE') create index SYS_SERIALE on AGEN_DBDELEGATI ([SYS_SERIALE] asc)
catalog: append table AGEN_LUOGHICONS ([IDLuogo] 3 0, [IDAnagContr] 3 0, [IDAnagInt] 3 0, [SYS_SERIALE] 202 16, [ComuneStato] 202 40, [Provincia] 202 2, [IndirizzoVia] 202 35, [IndirizzoNumero] 202 6, [IndirizzoCAP] 202 5)
if exists(select * from sysindexes where name = 'CUR_AGEN_LUOGHICONSPrimaryKey') alter table AGEN_LUOGHICONS drop constraint CUR_AGEN_LUOGHICONSPrimaryKey
alter table AGEN_LUOGHICONS alter column [IDLuogo] int not null
if not exists(select * from sysindexes where id = object_id('AGEN_LUOGHICONS') and name='CUR_AGEN_LUOGHICONSPrimaryKey') alter table AGEN_LUOGHICONS add constraint CUR_AGEN_LUOGHICONSPrimaryKey primary key ([IDLuogo] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_LUOGHICONS') and name='IDAnagContr') create index IDAnagContr on AGEN_LUOGHICONS ([IDAnagContr] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_LUOGHICONS') and name='IDAnagInt') create index IDAnagInt on AGEN_LUOGHICONS ([IDAnagInt] asc)
if not exists(select * from sysindexes where id = object_id('AGEN_LUOGHICONS') and name='Seriale') create index Seriale on AGEN_LUOGHICONS ([SYS_SERIALE] asc)
catalog: append table QZSYSTEM ([VERSIONE] 3 0, [LOCKED] 11 0, [LOCKED_NOTE] 202 255, [DESCRIZIONE] 202 255, [PARAMETRI] 202 255, [CHECK] 203 0, [FOLIATRA_DATA_SYNC] 135 0, [FOLIATRA_DATA_SYNC_VAL] 135 0, [IDRec] 3 0)
update QZSYSTEM set [VERSIONE]=0 where [VERSIONE] is null
update QZSYSTEM set [LOCKED]=0 where [LOCKED] is null
if exists(select * from sysindexes where name = 'CUR_QZSYSTEMPrimaryKey') alter table QZSYSTEM drop constraint CUR_QZSYSTEMPrimaryKey
alter table QZSYSTEM alter column [IDRec] int not null
alter table QZSYSTEM add constraint [DEFVAL_QZSYSTEMVERSIONE] default 0 for [VERSIONE]
alter table QZSYSTEM add constraint [DEFVAL_QZSYSTEMLOCKED] default 0 for [LOCKED]
if not exists(select * from sysindexes where id = object_id('QZSYSTEM') and name='CUR_QZSYSTEMPrimaryKey') alter table QZSYSTEM add constraint CUR_QZSYSTEMPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('QZSYSTEM') and name='IDRec') create index IDRec on QZSYSTEM ([IDRec] asc)
catalog: append table Anag_01_Anagrafica ([ID_Anag] 3 0, [GUID] 72 0, [Denominazione] 202 255, [Cognome] 202 255, [Nome] 202 255, [Ditta] 202 255, [PIva] 202 20, [CodFisc] 202 20, [ID_Paese] 3 0, [FlagPF] 11 0, [Sesso] 202 1, [DataNascita] 135 0, [CodComuneNascita] 202 4, [EmailPEC] 202 255, [Email] 202 255, [Dominio] 202 255, [Tel] 202 20, [Cell] 202 20, [Fax] 202 20, [ID_Titolo] 3 0, [NaturaGiuridica] 3 0, [Ridotta] 11 0)
update Anag_01_Anagrafica set [FlagPF]=0 where [FlagPF] is null
update Anag_01_Anagrafica set [Ridotta]=0 where [Ridotta] is null
if exists(select * from sysindexes where name = 'CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica') alter table Anag_01_Anagrafica drop constraint CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica
alter table Anag_01_Anagrafica alter column [ID_Anag] int not null
alter table Anag_01_Anagrafica alter column [GUID] uniqueidentifier not null
alter table Anag_01_Anagrafica add constraint [DEFVAL_Anag_01_AnagraficaFlagPF] default 0 for [FlagPF]
alter table Anag_01_Anagrafica add constraint [DEFVAL_Anag_01_AnagraficaRidotta] default 0 for [Ridotta]
if not exists(select * from sysindexes where id = object_id('Anag_01_Anagrafica') and name='CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica') alter table Anag_01_Anagrafica add constraint CUR_Anag_01_AnagraficaCUR_Anag_AnagraficaPK_Anag_Anagrafica primary key ([ID_Anag] asc)
if not exists(select * from sysindexes where id = object_id('Anag_01_Anagrafica') and name='IX_Anag_Anagrafica') create unique index IX_Anag_Anagrafica on Anag_01_Anagrafica ([GUID] asc)
if not exists(select * from sysindexes where id = object_id('Anag_01_Anagrafica') and name='IX_Anag_01_Anagrafica_CFIS') create index IX_Anag_01_Anagrafica_CFIS on Anag_01_Anagrafica ([CodFisc] asc)
if not exists(select * from sysindexes where id = object_id('Anag_01_Anagrafica') and name='IX_Anag_01_Anagrafica_PIVA') create index IX_Anag_01_Anagrafica_PIVA on Anag_01_Anagrafica ([PIva] asc)
catalog: append table Anag_02_Comuni ([ID_Catasto] 3 0, [Cod_Catasto] 202 4, [Cod_ISTAT] 3 0, [Denom_ITA] 203 0, [Denom_Estero] 203 0, [Cod_Provincia] 202 3, [Cod_Citta_Metr] 202 3, [Cod_Regione] 202 3, [Soppresso] 11 0, [Data_aggiornamento] 135 0, [Note_variazione] 203 0, [Cod_Catasto_Nuovo] 202 4, [Denom_Nuovo] 203 0)
update Anag_02_Comuni set [Cod_Catasto]='' where [Cod_Catasto] is null
update Anag_02_Comuni set [Soppresso]=0 where [Soppresso] is null
if exists(select * from sysindexes where name = 'CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni') alter table Anag_02_Comuni drop constraint CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni
alter table Anag_02_Comuni alter column [Cod_Catasto] nvarchar(4) not null
alter table Anag_02_Comuni alter column [ID_Catasto] int not null
alter table Anag_02_Comuni alter column [Cod_Catasto] nvarchar(4) not null
alter table Anag_02_Comuni add constraint [DEFVAL_Anag_02_ComuniCod_Catasto] default '' for [Cod_Catasto]
alter table Anag_02_Comuni add constraint [DEFVAL_Anag_02_ComuniSoppresso] default 0 for [Soppresso]
if not exists(select * from sysindexes where id = object_id('Anag_02_Comuni') and name='CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni') alter table Anag_02_Comuni add constraint CUR_Anag_02_ComuniCUR_Anag_ComuniPK_Anag_Comuni primary key ([ID_Catasto] asc)
if not exists(select * from sysindexes where id = object_id('Anag_02_Comuni') and name='IX_Anag_Comuni') create unique index IX_Anag_Comuni on Anag_02_Comuni ([Cod_Catasto] asc)
catalog: append table Anag_03_Cap ([ID_Cap] 3 0, [GUID] 72 0, [Cod_Catasto] 202 4, [Frazione] 203 0, [Frazione_Alt] 203 0, [Indirizzo] 203 0, [Strada] 203 0, [Nota] 203 0, [Cap] 203 0)
if exists(select * from sysindexes where name = 'CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap') alter table Anag_03_Cap drop constraint CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap
alter table Anag_03_Cap alter column [ID_Cap] int not null
alter table Anag_03_Cap alter column [GUID] uniqueidentifier not null
if not exists(select * from sysindexes where id = object_id('Anag_03_Cap') and name='CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap') alter table Anag_03_Cap add constraint CUR_Anag_03_CapCUR_Anag_CapPK_Anag_Cap primary key ([ID_Cap] asc)
if not exists(select * from sysindexes where id = object_id('Anag_03_Cap') and name='IX_Anag_Cap') create unique index IX_Anag_Cap on Anag_03_Cap ([GUID] asc)
catalog: append table Anag_04_Province ([ID_Prov] 3 0, [ID_CittaMetr] 3 0, [ID_Regione] 3 0, [Provincia] 203 0, [Provincia_Estero] 203 0, [Sigla] 202 2, [CittaMetr] 11 0)
update Anag_04_Province set [CittaMetr]=0 where [CittaMetr] is null
if exists(select * from sysindexes where name = 'CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro') alter table Anag_04_Province drop constraint CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro
alter table Anag_04_Province alter column [ID_Prov] int not null
alter table Anag_04_Province add constraint [DEFVAL_Anag_04_ProvinceCittaMetr] default 0 for [CittaMetr]
if not exists(select * from sysindexes where id = object_id('Anag_04_Province') and name='CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro') alter table Anag_04_Province add constraint CUR_Anag_04_ProvinceCUR_Anag_ProvinceAnag_Pro primary key ([ID_Prov] asc)
catalog: append table Anag_05_Regioni ([ID_Regione] 3 0, [Regione] 203 0, [Regione_Estero] 203 0, [ID_Area] 3 0)
if exists(select * from sysindexes where name = 'CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg') alter table Anag_05_Regioni drop constraint CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg
alter table Anag_05_Regioni alter column [ID_Regione] int not null
if not exists(select * from sysindexes where id = object_id('Anag_05_Regioni') and name='CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg') alter table Anag_05_Regioni add constraint CUR_Anag_05_RegioniCUR_Anag_RegioniAnag_Reg primary key ([ID_Regione] asc)
catalog: append table Anag_06_AreeGeografiche ([ID_Area] 3 0, [Area] 203 0)
if exists(select * from sysindexes where name = 'CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are') alter table Anag_06_AreeGeografiche drop constraint CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are
alter table Anag_06_AreeGeografiche alter column [ID_Area] int not null
if not exists(select * from sysindexes where id = object_id('Anag_06_AreeGeografiche') and name='CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are') alter table Anag_06_AreeGeografiche add constraint CUR_Anag_06_AreeGeograficheCUR_Anag_AreeGeograficheAnag_Are primary key ([ID_Area] asc)
catalog: append table Anag_AnagraficaExt ([ID_AnagExt] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [RegimeFiscale] 3 0, [LiquidazioneIVA] 3 0, [CCIAAIscrizione] 3 0, [CCIAASede] 202 50, [CodAlbo] 3 0, [SedeAlbo] 202 4, [Numero] 3 0)
if exists(select * from sysindexes where name = 'CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt') alter table Anag_AnagraficaExt drop constraint CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt
alter table Anag_AnagraficaExt alter column [ID_AnagExt] int not null
alter table Anag_AnagraficaExt alter column [GUID] uniqueidentifier not null
if not exists(select * from sysindexes where id = object_id('Anag_AnagraficaExt') and name='CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt') alter table Anag_AnagraficaExt add constraint CUR_Anag_AnagraficaExtCUR_Anag_AnagraficaExtPK_Anag_AnagraficaExt primary key ([ID_AnagExt] asc)
if not exists(select * from sysindexes where id = object_id('Anag_AnagraficaExt') and name='IX_Anag_AnagraficaExt') create unique index IX_Anag_AnagraficaExt on Anag_AnagraficaExt ([GUID] asc)
catalog: append table Anag_AnagRuoli ([ID_RuoloAnag] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [ID_Ruolo] 3 0)
if exists(select * from sysindexes where name = 'CUR_Anag_AnagRuoliPK_Anag_AnagRuoli') alter table Anag_AnagRuoli drop constraint CUR_Anag_AnagRuoliPK_Anag_AnagRuoli
alter table Anag_AnagRuoli alter column [ID_RuoloAnag] int not null
if not exists(select * from sysindexes where id = object_id('Anag_AnagRuoli') and name='CUR_Anag_AnagRuoliPK_Anag_AnagRuoli') alter table Anag_AnagRuoli add constraint CUR_Anag_AnagRuoliPK_Anag_AnagRuoli primary key ([ID_RuoloAnag] asc)
catalog: append table Anag_Attivita ([ID_Attivita] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [Descrizione] 203 0, [Cod_Attivita] 3 0)
update Anag_Attivita set [Cod_Attivita]=0 where [Cod_Attivita] is null
if exists(select * from sysindexes where name = 'CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita') alter table Anag_Attivita drop constraint CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita
alter table Anag_Attivita alter column [ID_Attivita] int not null
alter table Anag_Attivita alter column [GUID] uniqueidentifier not null
alter table Anag_Attivita add constraint [DEFVAL_Anag_AttivitaCod_Attivita] default 0 for [Cod_Attivita]
if not exists(select * from sysindexes where id = object_id('Anag_Attivita') and name='CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita') alter table Anag_Attivita add constraint CUR_Anag_AttivitaCUR_Anag_AttivitaPK_Anag_Attivita primary key ([ID_Attivita] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Attivita') and name='IX_Anag_Attivita') create unique index IX_Anag_Attivita on Anag_Attivita ([GUID] asc)
catalog: append table Anag_Cert ([ID_Cert] 3 0, [GUID] 72 0, [GUID_Utente] 72 0, [AGIDResponsabile] 11 0, [AGIDIncaricoAziendale] 202 100, [AGIDInizioIncarico] 135 0, [AGIDFineIncarico] 135 0, [AGIDFirmaQAbile] 11 0, [AGIDFirmaSAbile] 11 0, [AGIDOrganizzazione] 202 100, [AGIDCertStore] 203 0, [AGIDCertQDefault] 203 0, [AGIDCertSDefault] 203 0, [AGIDSysInfoOK] 11 0)
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
if not exists(select * from sysindexes where id = object_id('Anag_Cert') and name='CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert') alter table Anag_Cert add constraint CUR_Anag_CertCUR_Anag_CertPK_Anag_Cert primary key ([ID_Cert] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Cert') and name='IX_Anag_Cert') create unique index IX_Anag_Cert on Anag_Cert ([GUID] asc)
catalog: append table Anag_Email ([IDEmail] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [Email] 202 255, [PEC] 11 0, [Note] 203 0)
update Anag_Email set [PEC]=0 where [PEC] is null
if exists(select * from sysindexes where name = 'CUR_Anag_EmailPK_Anag_Email') alter table Anag_Email drop constraint CUR_Anag_EmailPK_Anag_Email
alter table Anag_Email alter column [GUID] uniqueidentifier not null
alter table Anag_Email alter column [IDEmail] int not null
alter table Anag_Email add constraint [DEFVAL_Anag_EmailPEC] default 0 for [PEC]
if not exists(select * from sysindexes where id = object_id('Anag_Email') and name='CUR_Anag_EmailPK_Anag_Email') alter table Anag_Email add constraint CUR_Anag_EmailPK_Anag_Email primary key ([IDEmail] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Email') and name='GUID_Email') create unique index GUID_Email on Anag_Email ([GUID] asc)
catalog: append table Anag_Indirizzi ([ID_Indirizzo] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [GUID_TipoInd] 72 0, [DenominazioneIndirizzo] 202 255, [Strada] 202 20, [Via] 202 65, [NumeroCivico] 202 10, [Cap] 202 5, [Comune] 203 0, [Frazione] 203 0, [Note] 203 0, [Tel] 202 20, [Cell] 202 20, [Fax] 202 20)
if exists(select * from sysindexes where name = 'CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi') alter table Anag_Indirizzi drop constraint CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi
alter table Anag_Indirizzi alter column [ID_Indirizzo] int not null
alter table Anag_Indirizzi alter column [GUID] uniqueidentifier not null
alter table Anag_Indirizzi alter column [GUID_Anag] uniqueidentifier not null
if not exists(select * from sysindexes where id = object_id('Anag_Indirizzi') and name='CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi') alter table Anag_Indirizzi add constraint CUR_Anag_IndirizziCUR_Anag_IndirizziPK_Anag_Indirizzi primary key ([ID_Indirizzo] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Indirizzi') and name='IX_Anag_Indirizzi') create unique index IX_Anag_Indirizzi on Anag_Indirizzi ([GUID] asc, [GUID_Anag] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Indirizzi') and name='Anag_IndirizziGUID') create index Anag_IndirizziGUID on Anag_Indirizzi ([GUID] asc)
catalog: append table Anag_Liquidazione ([ID_Liq] 3 0, [Descrizione] 202 30)
if exists(select * from sysindexes where name = 'CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq') alter table Anag_Liquidazione drop constraint CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq
alter table Anag_Liquidazione alter column [ID_Liq] int not null
if not exists(select * from sysindexes where id = object_id('Anag_Liquidazione') and name='CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq') alter table Anag_Liquidazione add constraint CUR_Anag_LiquidazioneCUR_Anag_LiquidazioneAnag_Liq primary key ([ID_Liq] asc)
catalog: append table Anag_NaturaGiuridica ([ID_NatGiuridica] 3 0, [NaturaGiuridica] 203 0, [SoggettiResidenti] 11 0)
update Anag_NaturaGiuridica set [SoggettiResidenti]=0 where [SoggettiResidenti] is null
if exists(select * from sysindexes where name = 'CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat') alter table Anag_NaturaGiuridica drop constraint CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat
alter table Anag_NaturaGiuridica alter column [ID_NatGiuridica] int not null
alter table Anag_NaturaGiuridica add constraint [DEFVAL_Anag_NaturaGiuridicaSoggettiResidenti] default 0 for [SoggettiResidenti]
if not exists(select * from sysindexes where id = object_id('Anag_NaturaGiuridica') and name='CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat') alter table Anag_NaturaGiuridica add constraint CUR_Anag_NaturaGiuridicaCUR_Anag_NaturaGiuridicaAnag_Nat primary key ([ID_NatGiuridica] asc)
catalog: append table Anag_PercorsiFile ([ID_PercorsoFile] 3 0, [GUID_Anag] 72 0, [GUID_Attivita] 72 0, [Cod_Proc] 202 50, [Percorso] 203 0)
update Anag_PercorsiFile set [Cod_Proc]='' where [Cod_Proc] is null
if exists(select * from sysindexes where name = 'CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile') alter table Anag_PercorsiFile drop constraint CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile
alter table Anag_PercorsiFile alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_PercorsiFile alter column [ID_PercorsoFile] int not null
alter table Anag_PercorsiFile alter column [GUID_Anag] uniqueidentifier not null
alter table Anag_PercorsiFile alter column [GUID_Attivita] uniqueidentifier not null
alter table Anag_PercorsiFile alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_PercorsiFile add constraint [DEFVAL_Anag_PercorsiFileCod_Proc] default '' for [Cod_Proc]
if not exists(select * from sysindexes where id = object_id('Anag_PercorsiFile') and name='CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile') alter table Anag_PercorsiFile add constraint CUR_Anag_PercorsiFileCUR_Anag_PercorsiFilePK_Anag_PercorsiFile primary key ([ID_PercorsoFile] asc)
if not exists(select * from sysindexes where id = object_id('Anag_PercorsiFile') and name='IX_Anag_PercorsiFile') create unique index IX_Anag_PercorsiFile on Anag_PercorsiFile ([GUID_Anag] asc, [GUID_Attivita] asc, [Cod_Proc] asc)
catalog: append table Anag_ProcCodici ([ID_Codice] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [GUID_Attivita] 72 0, [Cod_Proc] 202 50, [Codice] 202 50, [Descrizione] 203 0)
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
if not exists(select * from sysindexes where id = object_id('Anag_ProcCodici') and name='CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici') alter table Anag_ProcCodici add constraint CUR_Anag_ProcCodiciCUR_Anag_ProcCodiciPK_Anag_ProcCodici primary key ([ID_Codice] asc)
if not exists(select * from sysindexes where id = object_id('Anag_ProcCodici') and name='IX_Anag_ProcCodici') create unique index IX_Anag_ProcCodici on Anag_ProcCodici ([GUID_Anag] asc, [GUID_Attivita] asc, [Cod_Proc] asc, [Codice] asc)
if not exists(select * from sysindexes where id = object_id('Anag_ProcCodici') and name='Anag_ProcCodiciGUID') create index Anag_ProcCodiciGUID on Anag_ProcCodici ([GUID] asc)
catalog: append table Anag_Procedure ([ID_Proc] 3 0, [Cod_Proc] 202 50, [Procedura] 202 50)
update Anag_Procedure set [Cod_Proc]='' where [Cod_Proc] is null
if exists(select * from sysindexes where name = 'CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure') alter table Anag_Procedure drop constraint CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure
alter table Anag_Procedure alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_Procedure alter column [ID_Proc] int not null
alter table Anag_Procedure alter column [Cod_Proc] nvarchar(50) not null
alter table Anag_Procedure add constraint [DEFVAL_Anag_ProcedureCod_Proc] default '' for [Cod_Proc]
if not exists(select * from sysindexes where id = object_id('Anag_Procedure') and name='CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure') alter table Anag_Procedure add constraint CUR_Anag_ProcedureCUR_Anag_ProcedurePK_Anag_Procedure primary key ([ID_Proc] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Procedure') and name='IX_Anag_Procedure') create unique index IX_Anag_Procedure on Anag_Procedure ([Cod_Proc] asc)
catalog: append table Anag_RegimeFiscale ([ID_RegimeFiscale] 3 0, [RegimeFiscale] 203 0)
if exists(select * from sysindexes where name = 'CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg') alter table Anag_RegimeFiscale drop constraint CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg
alter table Anag_RegimeFiscale alter column [ID_RegimeFiscale] int not null
if not exists(select * from sysindexes where id = object_id('Anag_RegimeFiscale') and name='CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg') alter table Anag_RegimeFiscale add constraint CUR_Anag_RegimeFiscaleCUR_Anag_RegimeFiscaleAnag_Reg primary key ([ID_RegimeFiscale] asc)
catalog: append table Anag_Ruoli ([ID_Ruolo] 3 0, [Flag_PF] 11 0, [ID_TipoRuolo] 3 0, [ID_RuoloPadre] 3 0, [Ruolo] 203 0)
update Anag_Ruoli set [Flag_PF]=0 where [Flag_PF] is null
if exists(select * from sysindexes where name = 'CUR_Anag_RuoliAnag_Ruo') alter table Anag_Ruoli drop constraint CUR_Anag_RuoliAnag_Ruo
alter table Anag_Ruoli alter column [ID_Ruolo] int not null
alter table Anag_Ruoli add constraint [DEFVAL_Anag_RuoliFlag_PF] default 0 for [Flag_PF]
if not exists(select * from sysindexes where id = object_id('Anag_Ruoli') and name='CUR_Anag_RuoliAnag_Ruo') alter table Anag_Ruoli add constraint CUR_Anag_RuoliAnag_Ruo primary key ([ID_Ruolo] asc)
catalog: append table Anag_RuoliTipi ([IDRec] 3 0, [Descrizione] 202 50)
if exists(select * from sysindexes where name = 'CUR_Anag_RuoliTipiPK_Anag_RuoliTipi') alter table Anag_RuoliTipi drop constraint CUR_Anag_RuoliTipiPK_Anag_RuoliTipi
alter table Anag_RuoliTipi alter column [IDRec] int not null
if not exists(select * from sysindexes where id = object_id('Anag_RuoliTipi') and name='CUR_Anag_RuoliTipiPK_Anag_RuoliTipi') alter table Anag_RuoliTipi add constraint CUR_Anag_RuoliTipiPK_Anag_RuoliTipi primary key ([IDRec] asc)
catalog: append table Anag_Utenti ([ID_Utente] 3 0, [GUID] 72 0, [GUID_Anag] 72 0, [Utente] 202 25, [Utente_Completo] 202 40, [Password] 202 25, [Servizio] 202 50, [Admin] 11 0, [Sicurezza] 3 0, [SecretKey] 3 0, [DomainUser] 202 100, [SYS_Web] 11 0, [SYS_LastViewUpd] 135 0)
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
if not exists(select * from sysindexes where id = object_id('Anag_Utenti') and name='CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti') alter table Anag_Utenti add constraint CUR_Anag_UtentiCUR_Anag_UtentiPK_Anag_Utenti primary key ([ID_Utente] asc)
if not exists(select * from sysindexes where id = object_id('Anag_Utenti') and name='IX_Anag_Utenti') create unique index IX_Anag_Utenti on Anag_Utenti ([GUID] asc)
catalog: append table APPLICATIVI ([ID_APPLICATIVO] 3 0, [COMPUTER] 202 255, [APPLICATIVO] 202 255, [PRE-PARAMETRI] 202 255, [POST-PARAMETRI] 202 255, [ESTENSIONI] 202 255, [FLAG_ARCHIVIO] 11 0, [SYS_SERIALE] 202 16)
update APPLICATIVI set [COMPUTER]='' where [COMPUTER] is null
update APPLICATIVI set [FLAG_ARCHIVIO]=0 where [FLAG_ARCHIVIO] is null
if exists(select * from sysindexes where name = 'CUR_APPLICATIVIPrimaryKey') alter table APPLICATIVI drop constraint CUR_APPLICATIVIPrimaryKey
alter table APPLICATIVI alter column [COMPUTER] nvarchar(255) not null
alter table APPLICATIVI alter column [ID_APPLICATIVO] int not null
alter table APPLICATIVI add constraint [DEFVAL_APPLICATIVICOMPUTER] default '' for [COMPUTER]
alter table APPLICATIVI add constraint [DEFVAL_APPLICATIVIFLAG_ARCHIVIO] default 0 for [FLAG_ARCHIVIO]
if not exists(select * from sysindexes where id = object_id('APPLICATIVI') and name='CUR_APPLICATIVIPrimaryKey') alter table APPLICATIVI add constraint CUR_APPLICATIVIPrimaryKey primary key ([ID_APPLICATIVO] asc)
if not exists(select * from sysindexes where id = object_id('APPLICATIVI') and name='ID_APPLICATIVO') create index ID_APPLICATIVO on APPLICATIVI ([ID_APPLICATIVO] asc)
catalog: append table ARCHI_FAX ([RICEVUTI] 11 0, [SYS_SERIALE] 202 16, [ATTIVO] 11 0, [PROFILO] 202 255, [FAX_BACK] 202 255, [PASSWORD] 202 50, [ESTENSIONI] 202 255, [INDIRIZZI] 202 255, [STAMPA] 11 0, [STAMPANTE] 202 64, [STAMPA_COPIE] 3 0, [ELIMINA] 11 0, [COMPUTER] 202 50, [NUMMODEM] 3 0, [DIRRICEV] 202 255, [PREFISSO] 202 10, [NUM_TENT] 3 0, [NUM_MINUTI] 3 0, [ID_FAX] 3 0)
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
if not exists(select * from sysindexes where id = object_id('ARCHI_FAX') and name='CUR_ARCHI_FAXPrimaryKey') alter table ARCHI_FAX add constraint CUR_ARCHI_FAXPrimaryKey primary key ([ID_FAX] asc)
if not exists(select * from sysindexes where id = object_id('ARCHI_FAX') and name='ID_FAX') create index ID_FAX on ARCHI_FAX ([ID_FAX] asc)
catalog: append table ARCHI_PRINT ([COMPUTER] 202 255, [FILE] 11 0, [PERCORSO] 202 255, [ATTIVO] 11 0, [SCHEMA] 202 16, [SYS_SERIALE] 202 16, [SOST_DOC] 11 0, [REFRESH_DOC] 11 0, [REFRESH_ADD] 11 0, [SOST_NO_FILE2] 11 0, [STAMPA_SPOOL] 11 0, [STAMPANTE] 202 64, [STAMPA_COPIE] 2 0, [COPIA_SPOOL] 11 0, [COPIA_PERCORSO] 202 255, [COPIA_ORIGINALE] 11 0, [FIND_SUBFOLDER] 11 0, [SUBFOLDER_LEVEL] 3 0, [ID_APRINT] 3 0, [ETICHETTA] 202 60, [CREATE_IMAGE] 11 0, [ONLY_LINKS] 11 0, [APPEND_PAGES] 11 0)
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
if not exists(select * from sysindexes where id = object_id('ARCHI_PRINT') and name='CUR_ARCHI_PRINTPrimaryKey') alter table ARCHI_PRINT add constraint CUR_ARCHI_PRINTPrimaryKey primary key ([ID_APRINT] asc)
if not exists(select * from sysindexes where id = object_id('ARCHI_PRINT') and name='ID_APRINT') create index ID_APRINT on ARCHI_PRINT ([ID_APRINT] asc)
catalog: append table ARCHI_SEND ([Attivo] 11 0, [ID] 3 0, [Computer] 202 35, [NomeArchivio] 202 80, [File_SYS] 202 20, [FileNomeAtt] 202 100, [UtenteFileNomeAtt] 203 0, [Firma_Sys] 202 20, [Filtro] 202 150, [CampoFrom] 202 20, [CampoMail] 202 20, [CampoInviato] 202 20, [Archivio] 202 20, [Oggetto] 202 20, [UtenteOggetto] 203 0, [Note] 202 20, [UtenteCorpo] 203 0, [Data] 202 20, [Ora] 202 20)
update ARCHI_SEND set [Attivo]=0 where [Attivo] is null
if exists(select * from sysindexes where name = 'CUR_ARCHI_SENDPrimaryKey') alter table ARCHI_SEND drop constraint CUR_ARCHI_SENDPrimaryKey
alter table ARCHI_SEND alter column [ID] int not null
alter table ARCHI_SEND add constraint [DEFVAL_ARCHI_SENDAttivo] default 0 for [Attivo]
if not exists(select * from sysindexes where id = object_id('ARCHI_SEND') and name='CUR_ARCHI_SENDPrimaryKey') alter table ARCHI_SEND add constraint CUR_ARCHI_SENDPrimaryKey primary key ([ID] asc)
if not exists(select * from sysindexes where id = object_id('ARCHI_SEND') and name='ID') create index [ID] on ARCHI_SEND ([ID] asc)
catalog: append table AREE ([ID_AREA] 3 0, [ID_PARENT] 3 0, [AREA] 202 100)
update AREE set [ID_PARENT]=0 where [ID_PARENT] is null
update AREE set [AREA]='' where [AREA] is null
if exists(select * from sysindexes where name = 'CUR_AREEID_AREA') alter table AREE drop constraint CUR_AREEID_AREA
alter table AREE alter column [AREA] nvarchar(100) not null
alter table AREE alter column [ID_AREA] int not null
alter table AREE add constraint [DEFVAL_AREEID_PARENT] default 0 for [ID_PARENT]
alter table AREE add constraint [DEFVAL_AREEAREA] default '' for [AREA]
if not exists(select * from sysindexes where id = object_id('AREE') and name='CUR_AREEID_AREA') alter table AREE add constraint CUR_AREEID_AREA primary key ([ID_AREA] asc)
catalog: append table AUTOSPOOL_PROFILI ([IDRec] 3 0, [COMPUTER] 202 255, [COD_TIPODOC] 3 0, [FILEMASK] 202 255, [ATTIVO] 11 0, [SOST_DOC] 11 0, [FIND_SUBFOLDER] 11 0, [SUBFOLDER_LEVEL] 3 0, [ETICHETTA] 202 60, [ARCH_DEST] 202 16, [REFRESH_DOC] 11 0, [SOST_NO_FILE2] 11 0, [REFRESH_ADD] 11 0, [ONLY_LINKS] 11 0, [COPY_FILES] 11 0, [COPY_PATH] 202 255, [DICT_CONV] 11 0, [LINKS_REPLACE] 11 0)
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
if not exists(select * from sysindexes where id = object_id('AUTOSPOOL_PROFILI') and name='CUR_AUTOSPOOL_PROFILIPrimaryKey') alter table AUTOSPOOL_PROFILI add constraint CUR_AUTOSPOOL_PROFILIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('AUTOSPOOL_PROFILI') and name='COMPUTER') create index COMPUTER on AUTOSPOOL_PROFILI ([COMPUTER] asc)
if not exists(select * from sysindexes where id = object_id('AUTOSPOOL_PROFILI') and name='TIPO_DOC') create index TIPO_DOC on AUTOSPOOL_PROFILI ([COMPUTER] asc, [COD_TIPODOC] asc)
catalog: append table CampiElab ([IDCampi] 3 0, [IDProc] 3 0, [CampoOr] 202 50, [CampoDest] 202 50, [Numeri] 202 50, [Tipo] 202 15)
update CampiElab set [IDProc]=0 where [IDProc] is null
if exists(select * from sysindexes where name = 'CUR_CampiElabPrimaryKey') alter table CampiElab drop constraint CUR_CampiElabPrimaryKey
alter table CampiElab alter column [IDCampi] int not null
alter table CampiElab add constraint [DEFVAL_CampiElabIDProc] default 0 for [IDProc]
if not exists(select * from sysindexes where id = object_id('CampiElab') and name='CUR_CampiElabPrimaryKey') alter table CampiElab add constraint CUR_CampiElabPrimaryKey primary key ([IDCampi] asc)
if not exists(select * from sysindexes where id = object_id('CampiElab') and name='IDCampi') create index IDCampi on CampiElab ([IDCampi] asc)
if not exists(select * from sysindexes where id = object_id('CampiElab') and name='IDProc') create index IDProc on CampiElab ([IDProc] asc)
catalog: append table CLASSI ([ID_CLASSE] 3 0, [CLASSE] 202 20)
update CLASSI set [CLASSE]='' where [CLASSE] is null
if exists(select * from sysindexes where name = 'CUR_CLASSIDB_CLASSE') alter table CLASSI drop constraint CUR_CLASSIDB_CLASSE
alter table CLASSI alter column [CLASSE] nvarchar(20) not null
alter table CLASSI alter column [ID_CLASSE] int not null
alter table CLASSI add constraint [DEFVAL_CLASSICLASSE] default '' for [CLASSE]
if not exists(select * from sysindexes where id = object_id('CLASSI') and name='CUR_CLASSIDB_CLASSE') alter table CLASSI add constraint CUR_CLASSIDB_CLASSE primary key ([ID_CLASSE] asc)
catalog: append table Correlazioni ([IDCorrelazioni] 3 0, [IDDefSucc] 3 0, [LEFT] 3 0, [TOP] 3 0, [RIGHT] 3 0, [BOTTOM] 3 0, [Valore] 202 50, [Azione] 202 50, [Campo_da_Compilare] 202 50, [Tipo_Dato] 11 0, [Penna] 11 0, [ContatorePg] 11 0)
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
if not exists(select * from sysindexes where id = object_id('Correlazioni') and name='CUR_CorrelazioniPrimaryKey') alter table Correlazioni add constraint CUR_CorrelazioniPrimaryKey primary key ([IDCorrelazioni] asc)
if not exists(select * from sysindexes where id = object_id('Correlazioni') and name='IDCorrelazioni') create index IDCorrelazioni on Correlazioni ([IDCorrelazioni] asc)
if not exists(select * from sysindexes where id = object_id('Correlazioni') and name='IDDefSucc') create index IDDefSucc on Correlazioni ([IDDefSucc] asc)
catalog: append table DB_FOLIATRA_ID ([IDRec] 3 0, [FOLIATRA_ID] 202 37, [FOLIATRA_PWD] 203 0, [FOLIATRA_NOTE] 203 0, [FOLIATRA_ATTIVO] 2 0, [FOLIATRA_GEST] 3 0)
update DB_FOLIATRA_ID set [FOLIATRA_ID]='' where [FOLIATRA_ID] is null
update DB_FOLIATRA_ID set [FOLIATRA_GEST]=0 where [FOLIATRA_GEST] is null
if exists(select * from sysindexes where name = 'CUR_DB_FOLIATRA_IDPrimaryKey') alter table DB_FOLIATRA_ID drop constraint CUR_DB_FOLIATRA_IDPrimaryKey
alter table DB_FOLIATRA_ID alter column [FOLIATRA_ID] nvarchar(37) not null
alter table DB_FOLIATRA_ID alter column [IDRec] int not null
alter table DB_FOLIATRA_ID add constraint [DEFVAL_DB_FOLIATRA_IDFOLIATRA_ID] default '' for [FOLIATRA_ID]
alter table DB_FOLIATRA_ID add constraint [DEFVAL_DB_FOLIATRA_IDFOLIATRA_GEST] default 0 for [FOLIATRA_GEST]
if not exists(select * from sysindexes where id = object_id('DB_FOLIATRA_ID') and name='CUR_DB_FOLIATRA_IDPrimaryKey') alter table DB_FOLIATRA_ID add constraint CUR_DB_FOLIATRA_IDPrimaryKey primary key ([IDRec] asc)
catalog: append table DB_FOLIATRA_STATO ([IDRec] 3 0, [FOLIATRA_ID] 202 37, [FOLIATRA_SYS_SERIALE] 202 16, [FOLIATRA_SYS_RECORD] 3 0, [FOLIATRA_STATO] 3 0, [FOLIATRA_DATA_STATO] 135 0, [FOLIATRA_TAG_CODICE] 202 64, [FOLIATRA_TAG_DESCRIZIONE] 202 255, [FOLIATRA_UTENTE] 202 255, [FOLIATRA_DELETE] 11 0, [FOLIATRA_OCR_STATO] 3 0, [FOLIATRA_OCR_PRIORITA] 3 0, [FOLIATRA_OCR_CLEAN] 11 0)
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
if not exists(select * from sysindexes where id = object_id('DB_FOLIATRA_STATO') and name='CUR_DB_FOLIATRA_STATOIDRec') alter table DB_FOLIATRA_STATO add constraint CUR_DB_FOLIATRA_STATOIDRec primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('DB_FOLIATRA_STATO') and name='SYS_SERIALESYS_RECORD') create unique index SYS_SERIALESYS_RECORD on DB_FOLIATRA_STATO ([FOLIATRA_SYS_SERIALE] asc, [FOLIATRA_SYS_RECORD] asc)
catalog: append table DB_DIZIONARIO ([ID_DIZIONARIO] 202 25, [DIZIONARIO] 202 50, [NOME_TABELLA] 202 50)
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
if not exists(select * from sysindexes where id = object_id('DB_DIZIONARIO') and name='CUR_DB_DIZIONARIODB_DIZIONARIO') alter table DB_DIZIONARIO add constraint CUR_DB_DIZIONARIODB_DIZIONARIO primary key ([ID_DIZIONARIO] asc)
catalog: append table DB_DIZIONARIO_LINK ([ID_DIZIONARIO] 202 25, [SYS_SERIALE] 202 16, [FIELD] 202 64, [FIELD_TO_FIND] 202 64, [FIELD_COMPILE_VAL] 202 64, [FIELD_COMPILE_DES] 202 64, [PROG_DIZ] 3 0)
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
if not exists(select * from sysindexes where id = object_id('DB_DIZIONARIO_LINK') and name='CUR_DB_DIZIONARIO_LINKPrimaryKey') alter table DB_DIZIONARIO_LINK add constraint CUR_DB_DIZIONARIO_LINKPrimaryKey primary key ([PROG_DIZ] asc)
if not exists(select * from sysindexes where id = object_id('DB_DIZIONARIO_LINK') and name='DB_DIZIONARIO_LINK') create index DB_DIZIONARIO_LINK on DB_DIZIONARIO_LINK ([SYS_SERIALE] asc, [FIELD] asc)
catalog: append table DB_DOC_LINK ([DB_PAR_SERIALE] 202 16, [DB_PAR_RECORD] 3 0, [DB_SON_SERIALE] 202 16, [DB_SON_RECORD] 3 0)
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
if not exists(select * from sysindexes where id = object_id('DB_DOC_LINK') and name='CUR_DB_DOC_LINKDOC_LINK') alter table DB_DOC_LINK add constraint CUR_DB_DOC_LINKDOC_LINK primary key ([DB_PAR_SERIALE] asc, [DB_PAR_RECORD] asc, [DB_SON_SERIALE] asc, [DB_SON_RECORD] asc)
catalog: append table DB_DOSSIER_ASSOC ([SYS_SERIALE_DOS] 202 16, [SYS_SERIALE_ARC] 202 16, [SUBDOSSIER_UPDATE] 11 0, [SUBDOSSIER_CREATE] 11 0)
update DB_DOSSIER_ASSOC set [SUBDOSSIER_UPDATE]=0 where [SUBDOSSIER_UPDATE] is null
update DB_DOSSIER_ASSOC set [SUBDOSSIER_CREATE]=0 where [SUBDOSSIER_CREATE] is null
if exists(select * from sysindexes where name = 'CUR_DB_DOSSIER_ASSOCPrimaryKey') alter table DB_DOSSIER_ASSOC drop constraint CUR_DB_DOSSIER_ASSOCPrimaryKey
alter table DB_DOSSIER_ASSOC alter column [SYS_SERIALE_DOS] nvarchar(16) not null
alter table DB_DOSSIER_ASSOC alter column [SYS_SERIALE_ARC] nvarchar(16) not null
alter table DB_DOSSIER_ASSOC add constraint [DEFVAL_DB_DOSSIER_ASSOCSUBDOSSIER_UPDATE] default 0 for [SUBDOSSIER_UPDATE]
alter table DB_DOSSIER_ASSOC add constraint [DEFVAL_DB_DOSSIER_ASSOCSUBDOSSIER_CREATE] default 0 for [SUBDOSSIER_CREATE]
if not exists(select * from sysindexes where id = object_id('DB_DOSSIER_ASSOC') and name='CUR_DB_DOSSIER_ASSOCPrimaryKey') alter table DB_DOSSIER_ASSOC add constraint CUR_DB_DOSSIER_ASSOCPrimaryKey primary key ([SYS_SERIALE_DOS] asc, [SYS_SERIALE_ARC] asc)
catalog: append table DB_DOSSIER_LINK ([SYS_DS_SERIALE] 202 16, [SYS_DS_RECORD] 3 0, [SYS_SERIALE] 202 16, [SYS_RECORD] 3 0)
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
if not exists(select * from sysindexes where id = object_id('DB_DOSSIER_LINK') and name='CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK') alter table DB_DOSSIER_LINK add constraint CUR_DB_DOSSIER_LINKDB_DOSSIER_LINK primary key ([SYS_DS_SERIALE] asc, [SYS_DS_RECORD] asc, [SYS_SERIALE] asc, [SYS_RECORD] asc)
if not exists(select * from sysindexes where id = object_id('DB_DOSSIER_LINK') and name='DB_DOSSIER_LINKSYS_SERIALE') create index DB_DOSSIER_LINKSYS_SERIALE on DB_DOSSIER_LINK ([SYS_SERIALE] asc)
catalog: append table DB_DOSSIER_PERM ([SYS_SERIALE] 202 16, [ID_User] 3 0, [DossierOpen] 11 0, [DossierManage] 11 0, [SubdossierManage] 11 0, [SubdossierInsert] 11 0, [DocRemove] 11 0)
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
if not exists(select * from sysindexes where id = object_id('DB_DOSSIER_PERM') and name='CUR_DB_DOSSIER_PERMPrimaryKey') alter table DB_DOSSIER_PERM add constraint CUR_DB_DOSSIER_PERMPrimaryKey primary key ([SYS_SERIALE] asc, [ID_User] asc)
if not exists(select * from sysindexes where id = object_id('DB_DOSSIER_PERM') and name='ID_Utente') create index ID_Utente on DB_DOSSIER_PERM ([ID_User] asc)
catalog: append table DB_ELENCO ([SYS_SERIALE] 202 16, [ID_AREA] 3 0, [ID_CLASSE] 3 0, [ID_UTENTE] 3 0, [CREAZIONE] 135 0, [ARCHIVIO] 202 100, [SYS_DOSSIER] 11 0, [SYS_AUTOUPD] 11 0, [SYS_VERSIONE] 3 0, [SYS_PATH_DOCS] 202 255, [SYS_READONLY] 11 0, [SYS_LOCKED] 11 0, [SYS_LOCKED_NOTE] 202 255, [SYS_PROPERTY] 203 0, [SYS_AIPA_RESTRICT] 11 0, [SYS_AIPA_USER_ID] 3 0, [SYS_AIPA_SIGN_ALL_FILES] 11 0, [SYS_AIPA_FILES_OK] 203 0, [SYS_AIPA_FILES_KO] 203 0, [SYS_AIPA_LOCATION] 3 0, [SYS_INDEX_DESCR] 202 255, [SYS_DB_SECRET] 11 0, [SYS_USER_SECRET] 11 0, [SYS_AUTONOTIFY_SECRET] 11 0, [SYS_QUERY] 11 0, [SYS_FIRMA_CONT] 11 0, [SYS_FILTRO_INT] 11 0, [MAIL_DA] 202 255, [MAIL_DA_ADDR] 202 255, [MAIL_A] 202 255, [MAIL_A_ADDR] 202 255, [MAIL_OGGETTO] 202 255, [MAIL_DATA] 202 255, [MAIL_CC] 202 255, [MAIL_PROTO_DATA] 202 255, [SYS_WEB] 11 0, [ANNUALE] 11 0, [ANNO] 2 0, [PIVA] 202 16, [CODFIS] 202 16, [TIPO_ARCH] 3 0, [SYS_REGISTRO] 3 0, [SYS_RESPCONS] 3 0, [SYS_CODLUOGO] 3 0, [SYS_INTTRASM] 3 0, [SYS_IMPEGNONUM] 3 0, [SYS_IMPEGNODATA] 135 0, [SYS_IMPSOGGETTOOBBL] 3 0, [FLAG_RESPLOOKUP] 11 0, [PROTOCOLLO] 11 0, [ANNO_SUCC] 2 0, [SERIALE_SUCC] 202 16, [FLAG_FOLIATRA] 11 0, [ID_FOLIATRA] 202 37)
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
if not exists(select * from sysindexes where id = object_id('DB_ELENCO') and name='CUR_DB_ELENCOSYS_SERIALE') alter table DB_ELENCO add constraint CUR_DB_ELENCOSYS_SERIALE primary key ([SYS_SERIALE] asc)
if not exists(select * from sysindexes where id = object_id('DB_ELENCO') and name='DB_ELENCOID_AREA') create index DB_ELENCOID_AREA on DB_ELENCO ([ID_AREA] asc)
if not exists(select * from sysindexes where id = object_id('DB_ELENCO') and name='ID_FOLIATRA') create index ID_FOLIATRA on DB_ELENCO ([ID_FOLIATRA] asc)
if not exists(select * from sysindexes where id = object_id('DB_ELENCO') and name='ID_CLASSE') create index ID_CLASSE on DB_ELENCO ([ID_CLASSE] asc)
catalog: append table DB_ELENCO_PC ([COMPUTER] 202 255, [SYS_SERIALE] 202 16, [SYS_PATH_DOCS] 202 255)
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
if not exists(select * from sysindexes where id = object_id('DB_ELENCO_PC') and name='CUR_DB_ELENCO_PCPATH_LOCALE') alter table DB_ELENCO_PC add constraint CUR_DB_ELENCO_PCPATH_LOCALE primary key ([COMPUTER] asc, [SYS_SERIALE] asc)
catalog: append table DB_ELENCO_UTENTI_CNIPA ([SYS_SERIALE] 202 16, [ID_UTENTE] 3 0)
if exists(select * from sysindexes where name = 'CUR_DB_ELENCO_UTENTI_CNIPAPrimario') alter table DB_ELENCO_UTENTI_CNIPA drop constraint CUR_DB_ELENCO_UTENTI_CNIPAPrimario
alter table DB_ELENCO_UTENTI_CNIPA alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_ELENCO_UTENTI_CNIPA alter column [ID_UTENTE] int not null
if not exists(select * from sysindexes where id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='CUR_DB_ELENCO_UTENTI_CNIPAPrimario') alter table DB_ELENCO_UTENTI_CNIPA add constraint CUR_DB_ELENCO_UTENTI_CNIPAPrimario primary key ([SYS_SERIALE] asc, [ID_UTENTE] asc)
if not exists(select * from sysindexes where id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='ID_UTENTE') create index ID_UTENTE on DB_ELENCO_UTENTI_CNIPA ([ID_UTENTE] asc)
if not exists(select * from sysindexes where id = object_id('DB_ELENCO_UTENTI_CNIPA') and name='SYS_SERIALE') create index SYS_SERIALE on DB_ELENCO_UTENTI_CNIPA ([SYS_SERIALE] asc)
catalog: append table DB_PERMESSI ([SYS_SERIALE] 202 16, [ID_PERMESSO] 3 0)
if exists(select * from sysindexes where name = 'CUR_DB_PERMESSIDB_PERMESSO') alter table DB_PERMESSI drop constraint CUR_DB_PERMESSIDB_PERMESSO
alter table DB_PERMESSI alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_PERMESSI alter column [ID_PERMESSO] int not null
if not exists(select * from sysindexes where id = object_id('DB_PERMESSI') and name='CUR_DB_PERMESSIDB_PERMESSO') alter table DB_PERMESSI add constraint CUR_DB_PERMESSIDB_PERMESSO primary key ([SYS_SERIALE] asc, [ID_PERMESSO] asc)
catalog: append table DB_QUERY ([ID_QUERY] 3 0, [QUERY] 202 100, [SYS_QUERY] 203 0, [SYS_SERIALE] 202 255, [SYS_ATTIVO] 11 0, [SYS_GENERAL] 11 0, [SYS_OR] 11 0, [ID_UTENTE] 3 0, [TIPO_QUERY] 3 0)
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
if not exists(select * from sysindexes where id = object_id('DB_QUERY') and name='CUR_DB_QUERYPrimaryKey') alter table DB_QUERY add constraint CUR_DB_QUERYPrimaryKey primary key ([ID_QUERY] asc)
if not exists(select * from sysindexes where id = object_id('DB_QUERY') and name='ID_QUERY') create index ID_QUERY on DB_QUERY ([ID_QUERY] asc)
catalog: append table DB_QUERYUTENTI ([ID_QUERY] 3 0, [ID_UTENTE] 3 0, [SYS_SERIALE] 202 16, [SYS_CUSTOM] 11 0)
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
if not exists(select * from sysindexes where id = object_id('DB_QUERYUTENTI') and name='CUR_DB_QUERYUTENTIPrimaryKey') alter table DB_QUERYUTENTI add constraint CUR_DB_QUERYUTENTIPrimaryKey primary key ([ID_QUERY] asc, [ID_UTENTE] asc, [SYS_SERIALE] asc)
if not exists(select * from sysindexes where id = object_id('DB_QUERYUTENTI') and name='ID_QUERY') create index ID_QUERY on DB_QUERYUTENTI ([ID_QUERY] asc)
if not exists(select * from sysindexes where id = object_id('DB_QUERYUTENTI') and name='ID_UTENTE') create index ID_UTENTE on DB_QUERYUTENTI ([ID_UTENTE] asc)
catalog: append table DB_SECRET_ADMINS ([SYS_SERIALE] 202 16, [ID_UTENTE] 3 0)
update DB_SECRET_ADMINS set [SYS_SERIALE]='' where [SYS_SERIALE] is null
update DB_SECRET_ADMINS set [ID_UTENTE]=0 where [ID_UTENTE] is null
if exists(select * from sysindexes where name = 'CUR_DB_SECRET_ADMINSPrimaryKey') alter table DB_SECRET_ADMINS drop constraint CUR_DB_SECRET_ADMINSPrimaryKey
alter table DB_SECRET_ADMINS alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_SECRET_ADMINS alter column [SYS_SERIALE] nvarchar(16) not null
alter table DB_SECRET_ADMINS alter column [ID_UTENTE] int not null
alter table DB_SECRET_ADMINS add constraint [DEFVAL_DB_SECRET_ADMINSSYS_SERIALE] default '' for [SYS_SERIALE]
alter table DB_SECRET_ADMINS add constraint [DEFVAL_DB_SECRET_ADMINSID_UTENTE] default 0 for [ID_UTENTE]
if not exists(select * from sysindexes where id = object_id('DB_SECRET_ADMINS') and name='CUR_DB_SECRET_ADMINSPrimaryKey') alter table DB_SECRET_ADMINS add constraint CUR_DB_SECRET_ADMINSPrimaryKey primary key ([SYS_SERIALE] asc, [ID_UTENTE] asc)
if not exists(select * from sysindexes where id = object_id('DB_SECRET_ADMINS') and name='ID_UTENTE') create index ID_UTENTE on DB_SECRET_ADMINS ([ID_UTENTE] asc)
if not exists(select * from sysindexes where id = object_id('DB_SECRET_ADMINS') and name='SYS_SERIALE') create index SYS_SERIALE on DB_SECRET_ADMINS ([SYS_SERIALE] asc)
catalog: append table DB_STORICO_DOC ([SYS_SERIALE_SON] 202 16, [SYS_RECORD_SON] 3 0, [SYS_SERIALE_PAR] 202 16, [SYS_RECORD_PAR] 3 0, [WORKFILE] 202 255, [ESPORTATO] 11 0, [NOTE_EXP] 202 150, [REVISORE] 202 50, [DATA_REVISIONE] 135 0, [REVISIONATO] 11 0, [NOTE_REV] 202 150, [CERTIFICATORE] 202 50, [DATA_CERTIFICAZIONE] 135 0, [CERTIFICATO] 11 0, [NOTE_CER] 202 150, [CONTROLLORE] 202 50, [DATA_CONTROLLO] 135 0, [CONTROLLATO] 11 0, [NOTE_CON] 202 150)
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
if not exists(select * from sysindexes where id = object_id('DB_STORICO_DOC') and name='CUR_DB_STORICO_DOCPrimaryKey') alter table DB_STORICO_DOC add constraint CUR_DB_STORICO_DOCPrimaryKey primary key ([SYS_SERIALE_SON] asc, [SYS_RECORD_SON] asc, [SYS_SERIALE_PAR] asc, [SYS_RECORD_PAR] asc)
if not exists(select * from sysindexes where id = object_id('DB_STORICO_DOC') and name='DB_STORICO_PAR') create index DB_STORICO_PAR on DB_STORICO_DOC ([SYS_SERIALE_PAR] asc, [SYS_RECORD_PAR] asc)
if not exists(select * from sysindexes where id = object_id('DB_STORICO_DOC') and name='DB_STORICO_SON') create index DB_STORICO_SON on DB_STORICO_DOC ([SYS_SERIALE_SON] asc, [SYS_RECORD_SON] asc)
catalog: append table DB_STORICO_LINK ([SYS_SERIALE_SON] 202 16, [SYS_SERIALE_PAR] 202 16, [CAMPOREVIS] 202 100, [CAMPOREVDATA] 202 100, [PATHREV] 202 255, [MIGRATELINKS] 11 0, [FILTEREDVIEW] 11 0, [IDRec] 3 0)
update DB_STORICO_LINK set [MIGRATELINKS]=0 where [MIGRATELINKS] is null
update DB_STORICO_LINK set [FILTEREDVIEW]=0 where [FILTEREDVIEW] is null
if exists(select * from sysindexes where name = 'CUR_DB_STORICO_LINKPrimaryKey') alter table DB_STORICO_LINK drop constraint CUR_DB_STORICO_LINKPrimaryKey
alter table DB_STORICO_LINK alter column [IDRec] int not null
alter table DB_STORICO_LINK add constraint [DEFVAL_DB_STORICO_LINKMIGRATELINKS] default 0 for [MIGRATELINKS]
alter table DB_STORICO_LINK add constraint [DEFVAL_DB_STORICO_LINKFILTEREDVIEW] default 0 for [FILTEREDVIEW]
if not exists(select * from sysindexes where id = object_id('DB_STORICO_LINK') and name='CUR_DB_STORICO_LINKPrimaryKey') alter table DB_STORICO_LINK add constraint CUR_DB_STORICO_LINKPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('DB_STORICO_LINK') and name='IDRec') create index IDRec on DB_STORICO_LINK ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('DB_STORICO_LINK') and name='SYS_SERIALE_PAR') create index SYS_SERIALE_PAR on DB_STORICO_LINK ([SYS_SERIALE_PAR] asc)
if not exists(select * from sysindexes where id = object_id('DB_STORICO_LINK') and name='SYS_SERIALE_SON') create index SYS_SERIALE_SON on DB_STORICO_LINK ([SYS_SERIALE_SON] asc)
catalog: append table DefFCom ([IDProcesso] 3 0, [IdTipoFProc] 3 0, [NomeProc] 202 50, [ArcOrig] 202 50, [Arc_Dir] 11 0, [ArcDest] 202 50, [DestAuto] 11 0, [Elaborati] 11 0, [FoglioCom] 11 0, [PathFlCom] 202 255, [ValoreCom] 202 50, [LEFT] 3 0, [TOP] 3 0, [RIGHT] 3 0, [BOTTOM] 3 0, [NewRec] 3 0, [DelFCom] 3 0, [SYSData] 135 0, [PrimaoTutte] 11 0, [SaveOrig] 11 0, [JoinRig] 11 0, [ShowError] 11 0)
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
if not exists(select * from sysindexes where id = object_id('DefFCom') and name='CUR_DefFComPrimaryKey') alter table DefFCom add constraint CUR_DefFComPrimaryKey primary key ([IDProcesso] asc)
if not exists(select * from sysindexes where id = object_id('DefFCom') and name='IDProcesso') create index IDProcesso on DefFCom ([IDProcesso] asc)
if not exists(select * from sysindexes where id = object_id('DefFCom') and name='IdTipoProc') create index IdTipoProc on DefFCom ([IdTipoFProc] asc)
catalog: append table DefSucc ([IDDefSucc] 3 0, [IDDefCom] 3 0, [Nome] 202 50, [TipoElabora] 3 0, [PathReg] 202 255)
if exists(select * from sysindexes where name = 'CUR_DefSuccPrimaryKey') alter table DefSucc drop constraint CUR_DefSuccPrimaryKey
alter table DefSucc alter column [IDDefSucc] int not null
if not exists(select * from sysindexes where id = object_id('DefSucc') and name='CUR_DefSuccPrimaryKey') alter table DefSucc add constraint CUR_DefSuccPrimaryKey primary key ([IDDefSucc] asc)
if not exists(select * from sysindexes where id = object_id('DefSucc') and name='IDDefSucc') create index IDDefSucc on DefSucc ([IDDefCom] asc)
if not exists(select * from sysindexes where id = object_id('DefSucc') and name='IDValori') create index IDValori on DefSucc ([IDDefSucc] asc)
catalog: append table DOC_NOTIFICHE ([IDRec] 3 0, [SERIALE] 202 16, [RECORD] 3 0, [ID_MITTENTE] 3 0, [MITTENTE] 202 40, [DATA_INVIO] 135 0, [NOTE_INVIO] 202 255, [ID_DESTINATARIO] 3 0, [DESTINATARIO] 202 40, [DATA_RICEZIONE] 135 0, [NOTE_RICEZIONE] 203 0, [RICEVUTO] 11 0, [NUOVO] 11 0)
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
if not exists(select * from sysindexes where id = object_id('DOC_NOTIFICHE') and name='CUR_DOC_NOTIFICHEPrimaryKey') alter table DOC_NOTIFICHE add constraint CUR_DOC_NOTIFICHEPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('DOC_NOTIFICHE') and name='ID_') create index ID_ on DOC_NOTIFICHE ([ID_DESTINATARIO] asc)
if not exists(select * from sysindexes where id = object_id('DOC_NOTIFICHE') and name='ID_SENDER') create index ID_SENDER on DOC_NOTIFICHE ([ID_MITTENTE] asc)
if not exists(select * from sysindexes where id = object_id('DOC_NOTIFICHE') and name='IDRec') create index IDRec on DOC_NOTIFICHE ([IDRec] asc)
catalog: append table DOC_PROCEDIMENTI ([SERIALE] 202 16, [RECORD] 3 0, [ID_UTENTE] 3 0, [UTENTE_COMPLETO] 202 40, [DATA] 135 0, [PROCEDIMENTO] 202 255, [FIRMA] 203 0, [FIRMATO] 11 0, [IDRec] 3 0)
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
if not exists(select * from sysindexes where id = object_id('DOC_PROCEDIMENTI') and name='CUR_DOC_PROCEDIMENTIPrimaryKey') alter table DOC_PROCEDIMENTI add constraint CUR_DOC_PROCEDIMENTIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('DOC_PROCEDIMENTI') and name='IDRec') create index IDRec on DOC_PROCEDIMENTI ([IDRec] asc)
catalog: append table FISCO_AGENZIE ([IDAgenzia] 3 0, [CodUff] 202 3, [Denominazione] 202 50, [Ufficio] 202 50, [Via] 202 50, [Cap] 202 5, [Citta] 202 50, [Prov] 202 2)
update FISCO_AGENZIE set [Denominazione]='Agenzia delle Entrate' where [Denominazione] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_AGENZIEPrimaryKey') alter table FISCO_AGENZIE drop constraint CUR_FISCO_AGENZIEPrimaryKey
alter table FISCO_AGENZIE alter column [IDAgenzia] int not null
alter table FISCO_AGENZIE add constraint [DEFVAL_FISCO_AGENZIEDenominazione] default 'Agenzia delle Entrate' for [Denominazione]
if not exists(select * from sysindexes where id = object_id('FISCO_AGENZIE') and name='CUR_FISCO_AGENZIEPrimaryKey') alter table FISCO_AGENZIE add constraint CUR_FISCO_AGENZIEPrimaryKey primary key ([IDAgenzia] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_AGENZIE') and name='IDAgenzia') create index IDAgenzia on FISCO_AGENZIE ([IDAgenzia] asc)
catalog: append table FISCO_ANAG_PERCORSI ([ID_Anag] 3 0, [ID_TipoDoc] 3 0, [ID_Sez] 3 0, [Sez_media] 3 0, [Sez_path] 202 255)
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
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_PERCORSI') and name='CUR_FISCO_ANAG_PERCORSIPrimaryKey') alter table FISCO_ANAG_PERCORSI add constraint CUR_FISCO_ANAG_PERCORSIPrimaryKey primary key ([ID_Anag] asc, [ID_TipoDoc] asc, [ID_Sez] asc, [Sez_media] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_PERCORSI') and name='ID_Anag') create index ID_Anag on FISCO_ANAG_PERCORSI ([ID_Anag] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_PERCORSI') and name='ID_Sez') create index ID_Sez on FISCO_ANAG_PERCORSI ([ID_Sez] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_PERCORSI') and name='ID_TipoDoc') create index ID_TipoDoc on FISCO_ANAG_PERCORSI ([ID_TipoDoc] asc)
catalog: append table FISCO_ANAG_SEZIO ([ID_Sezio] 3 0, [ID_Anag] 3 0, [Flag_path_carta] 11 0, [Flag_path_elett] 11 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_SEZIO') and name='CUR_FISCO_ANAG_SEZIOPrimaryKey') alter table FISCO_ANAG_SEZIO add constraint CUR_FISCO_ANAG_SEZIOPrimaryKey primary key ([ID_Sezio] asc, [ID_Anag] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_SEZIO') and name='ID_Anag') create index ID_Anag on FISCO_ANAG_SEZIO ([ID_Anag] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAG_SEZIO') and name='ID_Sezio') create index ID_Sezio on FISCO_ANAG_SEZIO ([ID_Sezio] asc)
catalog: append table FISCO_ANAGRAFICHE ([ContribuenteCodice] 3 0, [ContribuentePersonaFisica] 202 1, [ContribuenteSocCapitali] 202 1, [ContribuenteDenominazione] 202 60, [ContribuenteCognome] 202 60, [ContribuenteNome] 202 24, [ContribuenteNascitaData] 135 0, [ContribuenteNascitaComune] 202 40, [ContribuenteNascitaProvincia] 202 2, [ContribuenteParIva] 202 20, [ContribuenteCodFisc] 202 20, [ContribuenteSesso] 202 1, [ContribuenteResidenzaIndirizzo] 202 65, [ContribuenteResidenzaNumCivico] 202 10, [ContribuenteResidenzaFrazione] 202 35, [ContribuenteResidenzaCAP] 202 5, [ContribuenteResidenzaComune] 202 40, [ContribuenteResidenzaProvincia] 202 2, [ContribuenteSedeLegIndirizzo] 202 65, [ContribuenteSedeLegNumCivico] 202 10, [ContribuenteSedeLegFrazione] 202 35, [ContribuenteSedeLegCAP] 202 5, [ContribuenteSedeLegComune] 202 40, [ContribuenteSedeLegProvincia] 202 2, [ContribuenteDomFiscIndirizzo] 202 65, [ContribuenteDomFiscNumCivico] 202 10, [ContribuenteDomFiscFrazione] 202 35, [ContribuenteDomFiscCAP] 202 5, [ContribuenteDomFiscComune] 202 40, [ContribuenteDomFiscProvincia] 202 2, [ContribuenteCodDitta] 202 10, [ContribuenteEMailPEC] 202 255, [ContribuenteEMailSimple] 202 255, [ContribuentePhone] 202 20, [ContribuenteFax] 202 20, [ContribuenteIBAN] 202 40, [CodPaghe] 202 10, [CodRedditi] 202 10, [Mat_Inps_Ditta] 202 15, [RappresentanteCognome] 202 60, [RappresentanteNome] 202 24, [RappresentanteIndirizzo] 202 65, [RappresentanteCAP] 202 5, [RappresentanteComune] 202 40, [RappresentanteProvincia] 202 2, [RappresentanteNascitaData] 135 0, [RappresentanteNascitaComune] 202 40, [RappresentanteNascitaProvincia] 202 2, [RappresentanteCodFisc] 202 16, [RappresentanteSesso] 202 1, [AnagraficaDisattivata] 202 1, [AnagraficaCongelata] 202 1, [CodConcBanca] 3 0, [CodAgenziaEnt] 3 0, [CodTrasmInt] 3 0, [CodRespCons] 3 0, [TipoLuogoCons] 3 0, [CodLuogo] 3 0, [FlagAutoResp] 11 0, [TipoContabilita] 202 1, [TipoAnag] 3 0, [ImpegnoNumero] 3 0, [ImpegnoData] 135 0, [NumIscrCAF] 202 5, [ImpTipoSoggettoObbl] 3 0, [PWD_Remote] 202 60)
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
if not exists(select * from sysindexes where id = object_id('FISCO_ANAGRAFICHE') and name='CUR_FISCO_ANAGRAFICHEPrimaryKey') alter table FISCO_ANAGRAFICHE add constraint CUR_FISCO_ANAGRAFICHEPrimaryKey primary key ([ContribuenteCodice] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAGRAFICHE') and name='CF') create index CF on FISCO_ANAGRAFICHE ([ContribuenteCodFisc] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_ANAGRAFICHE') and name='PIVA') create index PIVA on FISCO_ANAGRAFICHE ([ContribuenteParIva] asc)
catalog: append table FISCO_BOLLI_CONTA ([IDRec] 3 0, [ContribuenteCodice] 3 0, [Anno] 3 0, [Conto] 202 1, [NumDoc] 3 0, [CodDoc] 3 0, [Documento] 202 50, [UM] 202 1, [qPresunta] 3 0, [qProdotta] 3 0, [qResidua] 3 0, [qDebito] 3 0, [qLottoImp] 3 0, [qAvanzo] 3 0, [Imposta] 6 0, [Tariffa] 3 0, [Definitivo] 11 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_CONTA') and name='CUR_FISCO_BOLLI_CONTAPrimaryKey') alter table FISCO_BOLLI_CONTA add constraint CUR_FISCO_BOLLI_CONTAPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_CONTA') and name='NumDoc') create index NumDoc on FISCO_BOLLI_CONTA ([NumDoc] asc)
catalog: append table FISCO_BOLLI_F23 ([IDRec] 3 0, [TipoModello] 202 10, [IDVersamento] 3 0, [ContribuenteCodice] 3 0, [Anno] 3 0, [ContribuenteCodDitta] 202 10, [C1concessionario] 202 45, [C2delega] 202 45, [C2agenzia] 202 30, [C2provincia] 202 2, [C4denominazione] 202 100, [C4datanascita] 135 0, [C4sesso] 202 1, [C4comune] 202 50, [C4prov] 202 2, [C4codfisc] 202 16, [C5denominazione] 202 100, [C5datanascita] 135 0, [C5sesso] 202 1, [C5comune] 202 50, [C5prov] 202 2, [C5codfisc] 202 16, [C6ufficio] 202 3, [C8contenzioso] 202 1, [C9causale] 202 2, [C10anno] 202 4, [C10numero] 202 15, [C11tributo1] 202 4, [C11tributo2] 202 4, [C11tributo3] 202 4, [C11tributo4] 202 4, [C11tributo5] 202 4, [C11tributo6] 202 4, [C11tributo7] 202 4, [C11tributo8] 202 4, [C13importo1] 6 0, [C13importo2] 6 0, [C13importo3] 6 0, [C13importo4] 6 0, [C13importo5] 6 0, [C13importo6] 6 0, [C13importo7] 6 0, [C13importo8] 6 0, [C14destinatario1] 202 4, [C14destinatario2] 202 4, [C14destinatario3] 202 4, [C14destinatario4] 202 4, [C14destinatario5] 202 4, [C14destinatario6] 202 4, [C14destinatario7] 202 4, [C14destinatario8] 202 4, [EuroLettere] 202 255, [Totale] 6 0, [Note] 202 50)
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
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_F23') and name='CUR_FISCO_BOLLI_F23PrimaryKey') alter table FISCO_BOLLI_F23 add constraint CUR_FISCO_BOLLI_F23PrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_F23') and name='ContribuenteCodice') create index ContribuenteCodice on FISCO_BOLLI_F23 ([ContribuenteCodice] asc)
catalog: append table FISCO_BOLLI_F24PROGR ([IDStudio] 202 20, [Progressivo] 3 0)
update FISCO_BOLLI_F24PROGR set [IDStudio]='' where [IDStudio] is null
update FISCO_BOLLI_F24PROGR set [Progressivo]=0 where [Progressivo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_BOLLI_F24PROGRPrimaryKey') alter table FISCO_BOLLI_F24PROGR drop constraint CUR_FISCO_BOLLI_F24PROGRPrimaryKey
alter table FISCO_BOLLI_F24PROGR alter column [IDStudio] nvarchar(20) not null
alter table FISCO_BOLLI_F24PROGR alter column [IDStudio] nvarchar(20) not null
alter table FISCO_BOLLI_F24PROGR add constraint [DEFVAL_FISCO_BOLLI_F24PROGRIDStudio] default '' for [IDStudio]
alter table FISCO_BOLLI_F24PROGR add constraint [DEFVAL_FISCO_BOLLI_F24PROGRProgressivo] default 0 for [Progressivo]
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_F24PROGR') and name='CUR_FISCO_BOLLI_F24PROGRPrimaryKey') alter table FISCO_BOLLI_F24PROGR add constraint CUR_FISCO_BOLLI_F24PROGRPrimaryKey primary key ([IDStudio] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_F24PROGR') and name='IDStudio') create index IDStudio on FISCO_BOLLI_F24PROGR ([IDStudio] asc)
catalog: append table FISCO_BOLLI_MOVIMENTI ([IDRec] 3 0, [ContribuenteCodice] 3 0, [Anno] 3 0, [Causale] 202 2, [Descrizione] 202 50, [Dare] 6 0, [Avere] 6 0, [Saldo] 6 0, [IDVersamento] 3 0, [Definitivo] 11 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_MOVIMENTI') and name='CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey') alter table FISCO_BOLLI_MOVIMENTI add constraint CUR_FISCO_BOLLI_MOVIMENTIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_MOVIMENTI') and name='IDRec') create unique index IDRec on FISCO_BOLLI_MOVIMENTI ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_MOVIMENTI') and name='IDVersamento') create index IDVersamento on FISCO_BOLLI_MOVIMENTI ([IDVersamento] asc)
catalog: append table FISCO_BOLLI_TARIFFE ([TIPO_DOC_F] 3 0, [DOCUMENTO] 202 100, [TARIFFA] 3 0, [UM] 202 1, [LOTTOMIN] 3 0, [IMPOSTA] 6 0, [MAGGIORAZIONE] 6 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_TARIFFE') and name='CUR_FISCO_BOLLI_TARIFFEPrimaryKey') alter table FISCO_BOLLI_TARIFFE add constraint CUR_FISCO_BOLLI_TARIFFEPrimaryKey primary key ([TIPO_DOC_F] asc)
catalog: append table FISCO_BOLLI_VERSAMENTI ([IDRec] 3 0, [ContribuenteCodice] 3 0, [Anno] 3 0, [Importo] 6 0, [Note] 202 50, [Data] 135 0, [Cod_Azienda] 202 6, [CAB_Sportello] 202 6, [ID_F23] 3 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_BOLLI_VERSAMENTI') and name='CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey') alter table FISCO_BOLLI_VERSAMENTI add constraint CUR_FISCO_BOLLI_VERSAMENTIPrimaryKey primary key ([IDRec] asc)
catalog: append table FISCO_CONCBANCHE ([IDRec] 3 0, [Tipo] 202 1, [Denominazione] 202 50, [Agenzia_Ufficio] 202 50, [Prov] 202 2)
update FISCO_CONCBANCHE set [Tipo]='B' where [Tipo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_CONCBANCHEPrimaryKey') alter table FISCO_CONCBANCHE drop constraint CUR_FISCO_CONCBANCHEPrimaryKey
alter table FISCO_CONCBANCHE alter column [IDRec] int not null
alter table FISCO_CONCBANCHE add constraint [DEFVAL_FISCO_CONCBANCHETipo] default 'B' for [Tipo]
if not exists(select * from sysindexes where id = object_id('FISCO_CONCBANCHE') and name='CUR_FISCO_CONCBANCHEPrimaryKey') alter table FISCO_CONCBANCHE add constraint CUR_FISCO_CONCBANCHEPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_CONCBANCHE') and name='IDRec') create index IDRec on FISCO_CONCBANCHE ([IDRec] asc)
catalog: append table FISCO_F23 ([ContribuenteCodice] 3 0, [C1concessionario] 202 45, [C2delega] 202 45, [C2agenzia] 202 30, [C2provincia] 202 2, [C6ufficio] 202 3, [C8contenzioso] 202 1, [C9causale] 202 2, [C10anno] 202 4, [C10numero] 202 15, [C11tributo1] 202 4, [C11tributo2] 202 4, [C11tributo3] 202 4, [C11tributo4] 202 4, [C11tributo5] 202 4, [C11tributo6] 202 4, [C11tributo7] 202 4, [C11tributo8] 202 4, [C13importo1] 6 0, [C13importo2] 6 0, [C13importo3] 6 0, [C13importo4] 6 0, [C13importo5] 6 0, [C13importo6] 6 0, [C13importo7] 6 0, [C13importo8] 6 0, [C14destinatario1] 202 4, [C14destinatario2] 202 4, [C14destinatario3] 202 4, [C14destinatario4] 202 4, [C14destinatario5] 202 4, [C14destinatario6] 202 4, [C14destinatario7] 202 4, [C14destinatario8] 202 4, [EuroLettere] 202 255, [Totale] 6 0, [IDRec] 3 0)
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
if not exists(select * from sysindexes where id = object_id('FISCO_F23') and name='CUR_FISCO_F23PrimaryKey') alter table FISCO_F23 add constraint CUR_FISCO_F23PrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_F23') and name='ContribuenteCodice') create unique index ContribuenteCodice on FISCO_F23 ([ContribuenteCodice] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_F23') and name='IDRec') create index IDRec on FISCO_F23 ([IDRec] asc)
catalog: append table FISCO_INTERMEDIARI ([IDRec] 3 0, [CodAnag] 202 10, [CodDIRED] 3 0)
update FISCO_INTERMEDIARI set [CodDIRED]=0 where [CodDIRED] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_INTERMEDIARIPrimaryKey') alter table FISCO_INTERMEDIARI drop constraint CUR_FISCO_INTERMEDIARIPrimaryKey
alter table FISCO_INTERMEDIARI alter column [IDRec] int not null
alter table FISCO_INTERMEDIARI add constraint [DEFVAL_FISCO_INTERMEDIARICodDIRED] default 0 for [CodDIRED]
if not exists(select * from sysindexes where id = object_id('FISCO_INTERMEDIARI') and name='CUR_FISCO_INTERMEDIARIPrimaryKey') alter table FISCO_INTERMEDIARI add constraint CUR_FISCO_INTERMEDIARIPrimaryKey primary key ([IDRec] asc)
catalog: append table FISCO_SEZIONALI ([IDRec] 3 0, [ID_TipoDoc] 3 0, [Sez_descr] 202 50, [Sez_carta] 3 0, [Sez_elett] 3 0, [Sez_fepa] 3 0, [Flag_level] 3 0)
if exists(select * from sysindexes where name = 'CUR_FISCO_SEZIONALIPrimaryKey') alter table FISCO_SEZIONALI drop constraint CUR_FISCO_SEZIONALIPrimaryKey
alter table FISCO_SEZIONALI alter column [IDRec] int not null
if not exists(select * from sysindexes where id = object_id('FISCO_SEZIONALI') and name='CUR_FISCO_SEZIONALIPrimaryKey') alter table FISCO_SEZIONALI add constraint CUR_FISCO_SEZIONALIPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('FISCO_SEZIONALI') and name='IDRec') create index IDRec on FISCO_SEZIONALI ([IDRec] asc)
catalog: append table FISCO_TIPOCONT ([Tipo] 202 1, [Descrizione] 202 50)
update FISCO_TIPOCONT set [Tipo]='' where [Tipo] is null
if exists(select * from sysindexes where name = 'CUR_FISCO_TIPOCONTPrimaryKey') alter table FISCO_TIPOCONT drop constraint CUR_FISCO_TIPOCONTPrimaryKey
alter table FISCO_TIPOCONT alter column [Tipo] nvarchar(1) not null
alter table FISCO_TIPOCONT alter column [Tipo] nvarchar(1) not null
alter table FISCO_TIPOCONT add constraint [DEFVAL_FISCO_TIPOCONTTipo] default '' for [Tipo]
if not exists(select * from sysindexes where id = object_id('FISCO_TIPOCONT') and name='CUR_FISCO_TIPOCONTPrimaryKey') alter table FISCO_TIPOCONT add constraint CUR_FISCO_TIPOCONTPrimaryKey primary key ([Tipo] asc)
catalog: append table GRUPPI ([ID_GRUPPO] 3 0, [GRUPPO] 202 30, [EMAIL] 202 255)
if exists(select * from sysindexes where name = 'CUR_GRUPPIID_GRUPPO') alter table GRUPPI drop constraint CUR_GRUPPIID_GRUPPO
alter table GRUPPI alter column [GRUPPO] nvarchar(30) not null
alter table GRUPPI alter column [ID_GRUPPO] int not null
if not exists(select * from sysindexes where id = object_id('GRUPPI') and name='CUR_GRUPPIID_GRUPPO') alter table GRUPPI add constraint CUR_GRUPPIID_GRUPPO primary key ([ID_GRUPPO] asc)
if not exists(select * from sysindexes where id = object_id('GRUPPI') and name='GRUPPO') create unique index GRUPPO on GRUPPI ([GRUPPO] asc)
catalog: append table JoinOnly ([IDJoin] 3 0, [IDProc] 3 0, [CampiJoin] 202 255, [CampiSost] 202 255, [SYS_SYS2] 11 0, [Sostituisci] 11 0, [Aggiungi] 11 0, [MultiRec] 11 0, [UseOrig] 11 0, [PrefOrig] 11 0)
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
if not exists(select * from sysindexes where id = object_id('JoinOnly') and name='CUR_JoinOnlyPrimaryKey') alter table JoinOnly add constraint CUR_JoinOnlyPrimaryKey primary key ([IDJoin] asc)
if not exists(select * from sysindexes where id = object_id('JoinOnly') and name='IDJoin') create index IDJoin on JoinOnly ([IDJoin] asc)
if not exists(select * from sysindexes where id = object_id('JoinOnly') and name='IDProc') create index IDProc on JoinOnly ([IDProc] asc)
catalog: append table LOGOTIPI ([LOGOTIPO] 202 255, [FILE] 202 255, [FILE_V] 202 255, [FILE_C] 202 255, [MODULO] 202 50, [ANNO] 3 0, [DESCRIZIONE] 202 255, [OFFSET_X] 5 0, [OFFSET_Y] 5 0, [INTERLINE] 5 0, [FONT_NAME] 202 255, [FONT_WIDTH] 5 0, [FONT_HEIGHT] 5 0, [FONT_BOLD] 11 0, [FONT_ITALIC] 11 0, [ID_Logotipo] 3 0)
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
if not exists(select * from sysindexes where id = object_id('LOGOTIPI') and name='CUR_LOGOTIPIPrimaryKey') alter table LOGOTIPI add constraint CUR_LOGOTIPIPrimaryKey primary key ([ID_Logotipo] asc)
if not exists(select * from sysindexes where id = object_id('LOGOTIPI') and name='ID_Logotipo') create index ID_Logotipo on LOGOTIPI ([ID_Logotipo] asc)
catalog: append table MARCHE_CARICO ([Fornitore] 202 255, [Provider] 202 255, [Data_Carico] 135 0, [Utente] 202 50, [Password] 202 50, [Marche_Totali] 3 0, [Marche_Utilizzate] 3 0, [Ultimo_Utilizzo] 135 0, [Disponibili] 11 0, [Note] 202 255, [IDRec] 3 0)
update MARCHE_CARICO set [Marche_Totali]=0 where [Marche_Totali] is null
update MARCHE_CARICO set [Marche_Utilizzate]=0 where [Marche_Utilizzate] is null
update MARCHE_CARICO set [Disponibili]=0 where [Disponibili] is null
if exists(select * from sysindexes where name = 'CUR_MARCHE_CARICOPrimaryKey') alter table MARCHE_CARICO drop constraint CUR_MARCHE_CARICOPrimaryKey
alter table MARCHE_CARICO alter column [IDRec] int not null
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICOMarche_Totali] default 0 for [Marche_Totali]
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICOMarche_Utilizzate] default 0 for [Marche_Utilizzate]
alter table MARCHE_CARICO add constraint [DEFVAL_MARCHE_CARICODisponibili] default 0 for [Disponibili]
if not exists(select * from sysindexes where id = object_id('MARCHE_CARICO') and name='CUR_MARCHE_CARICOPrimaryKey') alter table MARCHE_CARICO add constraint CUR_MARCHE_CARICOPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('MARCHE_CARICO') and name='IDRec') create index IDRec on MARCHE_CARICO ([IDRec] asc)
catalog: append table MARCHE_SCARICO ([Data_Utilizzo] 135 0, [Marca_Utente] 202 50, [Marca_Password] 202 50, [Utente] 202 40, [File_Sorgente] 202 255, [File_Marcato] 202 255, [Marca_Note] 202 255, [IDRec] 3 0)
if exists(select * from sysindexes where name = 'CUR_MARCHE_SCARICOPrimaryKey') alter table MARCHE_SCARICO drop constraint CUR_MARCHE_SCARICOPrimaryKey
alter table MARCHE_SCARICO alter column [IDRec] int not null
if not exists(select * from sysindexes where id = object_id('MARCHE_SCARICO') and name='CUR_MARCHE_SCARICOPrimaryKey') alter table MARCHE_SCARICO add constraint CUR_MARCHE_SCARICOPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('MARCHE_SCARICO') and name='IDRec') create index IDRec on MARCHE_SCARICO ([IDRec] asc)
catalog: append table PERMESSI ([ID_PERMESSO] 3 0, [PERMESSO] 202 30, [APRI_DB] 11 0, [CREA_DB] 11 0, [VARIA_DB] 11 0, [CANCELLA_DB] 11 0, [SBLOCCA_DB] 11 0, [IMPORT_DB] 11 0, [EXPORT_DB] 11 0, [STAMPA_FILE] 11 0, [CREA_REC] 11 0, [VARIA_REC] 11 0, [CANCELLA_REC] 11 0, [STAMPA_REC] 11 0)
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
if not exists(select * from sysindexes where id = object_id('PERMESSI') and name='CUR_PERMESSIID_PERMESSO') alter table PERMESSI add constraint CUR_PERMESSIID_PERMESSO primary key ([ID_PERMESSO] asc)
if not exists(select * from sysindexes where id = object_id('PERMESSI') and name='PERMESSO') create unique index PERMESSO on PERMESSI ([PERMESSO] asc)
catalog: append table PROCESSI ([ID_PROCESSO] 3 0, [NOME] 202 50, [SORGENTE] 202 16, [FILTRO] 203 0, [PROCESSO_SRC] 11 0, [COPIA_DOCS] 11 0, [AGGIORNA_SRC] 11 0, [AUTO_DST] 11 0, [DESTINAZIONE] 202 16, [RIFINITURA] 11 0, [ELIMINA_VUOTE] 11 0, [RUOTA_A3] 3 0, [MULTI_PAGINA] 11 0, [FOGLIO_COMANDI] 11 0, [BARCODE_FC_L] 3 0, [BARCODE_FC_T] 3 0, [BARCODE_FC_R] 3 0, [BARCODE_FC_B] 3 0, [TIPO_BARCODE_FC] 3 0, [BARCODE_SCADENTE] 11 0, [VAL_BARCODE_FC] 202 255, [FC_SEPARATORE] 11 0, [ELIMINA_FC] 11 0, [PAGINE_PER_DOC] 3 0, [IMG_CAMPIONE] 202 255, [MULTI_DST] 11 0, [AGGIUNGI_DST] 11 0, [SOVRASCRIVI_DST] 11 0, [APPENDI_PAG_DST] 11 0, [PROGRESSIVO_DST] 202 64, [COPIA_CAMPI_ND] 11 0, [CONVERTI_PDF] 11 0, [SALVA_FILE2] 11 0, [ID_DIZ_DESC] 202 25)
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
if not exists(select * from sysindexes where id = object_id('PROCESSI') and name='CUR_PROCESSIPrimaryKey') alter table PROCESSI add constraint CUR_PROCESSIPrimaryKey primary key ([ID_PROCESSO] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSI') and name='PROCESSO') create unique index PROCESSO on PROCESSI ([NOME] asc)
catalog: append table PROCESSO_CAMPI ([ID_CAMPI] 3 0, [ID_PROCESSO] 3 0, [SORGENTE] 202 64, [DESTINAZIONE] 202 64, [PREVALENZA_SRC] 11 0, [VALORE_ZERO] 11 0, [RICERCA] 11 0, [RICHIESTO] 11 0, [ETICHETTA] 202 255)
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
if not exists(select * from sysindexes where id = object_id('PROCESSO_CAMPI') and name='CUR_PROCESSO_CAMPIPrimaryKey') alter table PROCESSO_CAMPI add constraint CUR_PROCESSO_CAMPIPrimaryKey primary key ([ID_CAMPI] asc)
catalog: append table PROCESSO_CAMPI_VALORE ([ID_VALORE] 3 0, [ID_CAMPI] 3 0, [ID_FUNZIONE] 3 0, [PARAMETRI] 202 255, [POST_FUNZIONE] 202 255)
update PROCESSO_CAMPI_VALORE set [ID_FUNZIONE]=-1 where [ID_FUNZIONE] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_CAMPI_VALOREPrimaryKey') alter table PROCESSO_CAMPI_VALORE drop constraint CUR_PROCESSO_CAMPI_VALOREPrimaryKey
alter table PROCESSO_CAMPI_VALORE alter column [ID_VALORE] int not null
alter table PROCESSO_CAMPI_VALORE add constraint [DEFVAL_PROCESSO_CAMPI_VALOREID_FUNZIONE] default -1 for [ID_FUNZIONE]
if not exists(select * from sysindexes where id = object_id('PROCESSO_CAMPI_VALORE') and name='CUR_PROCESSO_CAMPI_VALOREPrimaryKey') alter table PROCESSO_CAMPI_VALORE add constraint CUR_PROCESSO_CAMPI_VALOREPrimaryKey primary key ([ID_VALORE] asc)
catalog: append table PROCESSO_COMPUTER ([ID_COMPUTER] 3 0, [ID_PROCESSO] 3 0, [COMPUTER] 202 64, [SORGENTE] 202 64, [SCANAUTO] 11 0)
update PROCESSO_COMPUTER set [COMPUTER]='' where [COMPUTER] is null
update PROCESSO_COMPUTER set [SCANAUTO]=0 where [SCANAUTO] is null
if exists(select * from sysindexes where name = 'CUR_PROCESSO_COMPUTERPrimaryKey') alter table PROCESSO_COMPUTER drop constraint CUR_PROCESSO_COMPUTERPrimaryKey
alter table PROCESSO_COMPUTER alter column [COMPUTER] nvarchar(64) not null
alter table PROCESSO_COMPUTER alter column [ID_COMPUTER] int not null
alter table PROCESSO_COMPUTER alter column [ID_COMPUTER] int not null
alter table PROCESSO_COMPUTER add constraint [DEFVAL_PROCESSO_COMPUTERCOMPUTER] default '' for [COMPUTER]
alter table PROCESSO_COMPUTER add constraint [DEFVAL_PROCESSO_COMPUTERSCANAUTO] default 0 for [SCANAUTO]
if not exists(select * from sysindexes where id = object_id('PROCESSO_COMPUTER') and name='CUR_PROCESSO_COMPUTERPrimaryKey') alter table PROCESSO_COMPUTER add constraint CUR_PROCESSO_COMPUTERPrimaryKey primary key ([ID_COMPUTER] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_COMPUTER') and name='ID_COMPUTER') create unique index ID_COMPUTER on PROCESSO_COMPUTER ([ID_COMPUTER] asc)
catalog: append table PROCESSO_FUNZIONI ([ID_FUNZIONE] 3 0, [ID_PROCESSO] 3 0, [NOME] 202 50, [TIPO] 202 10, [PAG_VALORE] 3 0, [AREA_L] 3 0, [AREA_T] 3 0, [AREA_R] 3 0, [AREA_B] 3 0, [AZIONE] 202 255, [PARAMETRI] 202 255, [EXTRA] 202 255, [COMANDI] 202 255)
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
if not exists(select * from sysindexes where id = object_id('PROCESSO_FUNZIONI') and name='CUR_PROCESSO_FUNZIONIPrimaryKey') alter table PROCESSO_FUNZIONI add constraint CUR_PROCESSO_FUNZIONIPrimaryKey primary key ([ID_FUNZIONE] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_FUNZIONI') and name='FUNZIONE') create unique index FUNZIONE on PROCESSO_FUNZIONI ([ID_PROCESSO] asc, [NOME] asc)
catalog: append table PROCESSO_LOTTI ([ID_LOTTO] 3 0, [ID_PROCESSO] 3 0, [DATA] 135 0, [UTENTE] 202 40, [COMPUTER] 202 64, [SORGENTE] 202 16, [VERIFICATO] 11 0)
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
if not exists(select * from sysindexes where id = object_id('PROCESSO_LOTTI') and name='CUR_PROCESSO_LOTTIPrimaryKey') alter table PROCESSO_LOTTI add constraint CUR_PROCESSO_LOTTIPrimaryKey primary key ([ID_LOTTO] asc)
catalog: append table PROCESSO_LOTTO_DOCUMENTI ([ID_DOCUMENTO] 3 0, [ID_LOTTO] 3 0, [SORGENTE_REC] 3 0, [DESTINAZIONE] 202 16, [DESTINAZIONE_REC] 3 0, [ESITO] 202 255, [V_COD] 3 0, [V_ANNO] 3 0, [V_COD_TIPO_DOC_F] 3 0, [V_SERIE_DOC] 3 0, [V_NUM_DOC] 3 0)
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
if not exists(select * from sysindexes where id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey') alter table PROCESSO_LOTTO_DOCUMENTI add constraint CUR_PROCESSO_LOTTO_DOCUMENTIPrimaryKey primary key ([ID_DOCUMENTO] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='ID_RECORD') create index ID_RECORD on PROCESSO_LOTTO_DOCUMENTI ([ID_DOCUMENTO] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_LOTTO_DOCUMENTI') and name='NUM_DOC') create index NUM_DOC on PROCESSO_LOTTO_DOCUMENTI ([V_NUM_DOC] asc)
catalog: append table PROCESSO_MP ([ID_MP] 3 0, [ID_PROCESSO] 3 0, [NOME] 202 50, [VERTICALE] 11 0, [RETRO] 11 0, [DIMENSIONE] 3 0, [TAGLI] 202 50, [ORDINE_FRONTE] 202 50, [ORDINE_RETRO] 202 50)
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
if not exists(select * from sysindexes where id = object_id('PROCESSO_MP') and name='CUR_PROCESSO_MPPrimaryKey') alter table PROCESSO_MP add constraint CUR_PROCESSO_MPPrimaryKey primary key ([ID_MP] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_MP') and name='ID_MP') create index ID_MP on PROCESSO_MP ([ID_MP] asc)
if not exists(select * from sysindexes where id = object_id('PROCESSO_MP') and name='ID_PROCESSO') create index ID_PROCESSO on PROCESSO_MP ([ID_PROCESSO] asc)
catalog: append table PROTO_CONFIG ([TIPOPROTO] 202 1, [CONFIG] 11 0, [RICHIESTORFILE] 11 0, [RICHIESTOSFILE] 11 0, [BLOCCOR1] 11 0, [RICHIESTOR1] 11 0, [BLOCCOS1] 11 0, [RICHIESTOS1] 11 0, [BLOCCOR2] 11 0, [RICHIESTOR2] 11 0, [BLOCCOS2] 11 0, [RICHIESTOS2] 11 0, [BLOCCOR3] 11 0, [RICHIESTOR3] 11 0, [BLOCCOS3] 11 0, [RICHIESTOS3] 11 0, [BLOCCOR4] 11 0, [RICHIESTOR4] 11 0, [BLOCCOS4] 11 0, [RICHIESTOS4] 11 0, [BLOCCOR5] 11 0, [RICHIESTOR5] 11 0, [BLOCCOS5] 11 0, [RICHIESTOS5] 11 0, [RICHIESTOROGG] 11 0, [RICHIESTOSOGG] 11 0, [LOADCOMBO] 11 0, [IDRec] 3 0)
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
if not exists(select * from sysindexes where id = object_id('PROTO_CONFIG') and name='CUR_PROTO_CONFIGPrimaryKey') alter table PROTO_CONFIG add constraint CUR_PROTO_CONFIGPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('PROTO_CONFIG') and name='IDRec') create unique index IDRec on PROTO_CONFIG ([IDRec] asc)
catalog: append table PROTO_DB ([ID_GRUPPO] 3 0, [ANNO] 3 0, [UNICO] 11 0, [PEC] 11 0, [SYS_SERIALE_RIC] 202 16, [SYS_SERIALE_SPE] 202 16, [SYS_SERIALE_PEC] 202 16, [START_RIC] 5 0, [START_SPE] 5 0, [SYS_SERIALE_RIC_ORIG] 202 16, [SYS_SERIALE_SPE_ORIG] 202 16, [ATTIVA_INSERIMENTO] 11 0, [ETICHETTA_BARCODE] 202 13)
update PROTO_DB set [UNICO]=0 where [UNICO] is null
update PROTO_DB set [PEC]=0 where [PEC] is null
update PROTO_DB set [ATTIVA_INSERIMENTO]=0 where [ATTIVA_INSERIMENTO] is null
if exists(select * from sysindexes where name = 'CUR_PROTO_DBPROTO_DB') alter table PROTO_DB drop constraint CUR_PROTO_DBPROTO_DB
alter table PROTO_DB alter column [ID_GRUPPO] int not null
alter table PROTO_DB alter column [ANNO] int not null
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBUNICO] default 0 for [UNICO]
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBPEC] default 0 for [PEC]
alter table PROTO_DB add constraint [DEFVAL_PROTO_DBATTIVA_INSERIMENTO] default 0 for [ATTIVA_INSERIMENTO]
if not exists(select * from sysindexes where id = object_id('PROTO_DB') and name='CUR_PROTO_DBPROTO_DB') alter table PROTO_DB add constraint CUR_PROTO_DBPROTO_DB primary key ([ID_GRUPPO] asc, [ANNO] asc)
catalog: append table PROTO_TABELLA ([TIPO_TAB] 3 0, [RIC_SPE] 3 0, [VALORE] 202 255, [IDRec] 3 0)
update PROTO_TABELLA set [TIPO_TAB]=0 where [TIPO_TAB] is null
update PROTO_TABELLA set [RIC_SPE]=0 where [RIC_SPE] is null
if exists(select * from sysindexes where name = 'CUR_PROTO_TABELLAPrimaryKey') alter table PROTO_TABELLA drop constraint CUR_PROTO_TABELLAPrimaryKey
alter table PROTO_TABELLA alter column [IDRec] int not null
alter table PROTO_TABELLA add constraint [DEFVAL_PROTO_TABELLATIPO_TAB] default 0 for [TIPO_TAB]
alter table PROTO_TABELLA add constraint [DEFVAL_PROTO_TABELLARIC_SPE] default 0 for [RIC_SPE]
if not exists(select * from sysindexes where id = object_id('PROTO_TABELLA') and name='CUR_PROTO_TABELLAPrimaryKey') alter table PROTO_TABELLA add constraint CUR_PROTO_TABELLAPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('PROTO_TABELLA') and name='IDRec') create index IDRec on PROTO_TABELLA ([IDRec] asc)
catalog: append table SCANNER ([COMPUTER] 202 255, [PROFILO] 202 50, [TWAIN] 11 0, [SORGENTE] 202 255, [MODULO_ADF] 11 0, [INVERSIONE_BW] 11 0, [COMPRESSIONE] 3 0, [SCAN_TYPE] 3 0, [LUMINOSITA] 3 0, [CONTRASTO] 3 0, [RISOLUZIONE] 3 0, [ROTAZIONE] 3 0, [AREA_SCAN] 11 0, [AREA_START_X] 5 0, [AREA_END_X] 5 0, [AREA_START_Y] 5 0, [AREA_END_Y] 5 0, [FILE_TYPE] 202 50, [SUB_TYPE] 3 0, [FILE_MULTIPAGE] 11 0, [IDRec] 3 0)
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
if not exists(select * from sysindexes where id = object_id('SCANNER') and name='CUR_SCANNERPrimaryKey') alter table SCANNER add constraint CUR_SCANNERPrimaryKey primary key ([IDRec] asc)
if not exists(select * from sysindexes where id = object_id('SCANNER') and name='PROFILO') create unique index PROFILO on SCANNER ([COMPUTER] asc, [PROFILO] asc)
if not exists(select * from sysindexes where id = object_id('SCANNER') and name='IDRec') create index IDRec on SCANNER ([IDRec] asc)
catalog: append table SCHEMI ([ID_SCHEMA] 202 16, [SYS_SERIALE] 202 16, [DESCRIZIONE] 202 100, [VALIDO] 11 0, [SPOOL] 202 255)
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
if not exists(select * from sysindexes where id = object_id('SCHEMI') and name='CUR_SCHEMIDB_SCHEMI') alter table SCHEMI add constraint CUR_SCHEMIDB_SCHEMI primary key ([ID_SCHEMA] asc, [SYS_SERIALE] asc)
catalog: append table SECRET_LEV ([ID_SECRET_LEV] 3 0, [SECRET_LEV] 202 30)
update SECRET_LEV set [ID_SECRET_LEV]=0 where [ID_SECRET_LEV] is null
if exists(select * from sysindexes where name = 'CUR_SECRET_LEVPrimaryKey') alter table SECRET_LEV drop constraint CUR_SECRET_LEVPrimaryKey
alter table SECRET_LEV alter column [ID_SECRET_LEV] int not null
alter table SECRET_LEV add constraint [DEFVAL_SECRET_LEVID_SECRET_LEV] default 0 for [ID_SECRET_LEV]
if not exists(select * from sysindexes where id = object_id('SECRET_LEV') and name='CUR_SECRET_LEVPrimaryKey') alter table SECRET_LEV add constraint CUR_SECRET_LEVPrimaryKey primary key ([ID_SECRET_LEV] asc)
if not exists(select * from sysindexes where id = object_id('SECRET_LEV') and name='ID_SECRET_LEV') create index ID_SECRET_LEV on SECRET_LEV ([ID_SECRET_LEV] asc)
catalog: append table SYS_FIRMA_CONTESTUALE ([SYS_SERIALE] 202 16, [SYS_RECORD] 3 0, [SYS_SAVED] 11 0, [PC_UTENTE] 202 50)
update SYS_FIRMA_CONTESTUALE set [SYS_RECORD]=0 where [SYS_RECORD] is null
update SYS_FIRMA_CONTESTUALE set [SYS_SAVED]=0 where [SYS_SAVED] is null
if exists(select * from sysindexes where name = 'CUR_SYS_FIRMA_CONTESTUALEPrimaryKey') alter table SYS_FIRMA_CONTESTUALE drop constraint CUR_SYS_FIRMA_CONTESTUALEPrimaryKey
alter table SYS_FIRMA_CONTESTUALE alter column [SYS_SERIALE] nvarchar(16) not null
alter table SYS_FIRMA_CONTESTUALE alter column [SYS_RECORD] int not null
alter table SYS_FIRMA_CONTESTUALE add constraint [DEFVAL_SYS_FIRMA_CONTESTUALESYS_RECORD] default 0 for [SYS_RECORD]
alter table SYS_FIRMA_CONTESTUALE add constraint [DEFVAL_SYS_FIRMA_CONTESTUALESYS_SAVED] default 0 for [SYS_SAVED]
if not exists(select * from sysindexes where id = object_id('SYS_FIRMA_CONTESTUALE') and name='CUR_SYS_FIRMA_CONTESTUALEPrimaryKey') alter table SYS_FIRMA_CONTESTUALE add constraint CUR_SYS_FIRMA_CONTESTUALEPrimaryKey primary key ([SYS_SERIALE] asc, [SYS_RECORD] asc)
catalog: append table SYS_INTERMEDIARI ([COD_INT] 3 0, [DESCRIZIONE] 202 30)
update SYS_INTERMEDIARI set [COD_INT]=0 where [COD_INT] is null
if exists(select * from sysindexes where name = 'CUR_SYS_INTERMEDIARIPrimaryKey') alter table SYS_INTERMEDIARI drop constraint CUR_SYS_INTERMEDIARIPrimaryKey
alter table SYS_INTERMEDIARI alter column [COD_INT] int not null
alter table SYS_INTERMEDIARI add constraint [DEFVAL_SYS_INTERMEDIARICOD_INT] default 0 for [COD_INT]
if not exists(select * from sysindexes where id = object_id('SYS_INTERMEDIARI') and name='CUR_SYS_INTERMEDIARIPrimaryKey') alter table SYS_INTERMEDIARI add constraint CUR_SYS_INTERMEDIARIPrimaryKey primary key ([COD_INT] asc)
if not exists(select * from sysindexes where id = object_id('SYS_INTERMEDIARI') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_INTERMEDIARI ([COD_INT] asc)
catalog: append table SYS_LOG ([ID_LOG] 3 0, [DATA] 135 0, [HOST] 202 50, [UTENTE] 202 25, [DESCRIZIONE] 202 255, [SERIALE] 202 16, [RECORD] 3 0, [FILENAME] 202 100)
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
if not exists(select * from sysindexes where id = object_id('SYS_LOG') and name='CUR_SYS_LOGPrimaryKey') alter table SYS_LOG add constraint CUR_SYS_LOGPrimaryKey primary key ([ID_LOG] asc)
if not exists(select * from sysindexes where id = object_id('SYS_LOG') and name='ID_LOG') create index ID_LOG on SYS_LOG ([ID_LOG] asc)
catalog: append table SYS_PROCEDURE ([ID_Proc] 3 0, [Procedura] 202 100, [Cartella] 202 200, [PrefissoFile] 202 8, [ScheduleTask] 11 0, [FileExport] 11 0, [FileName] 3 0, [CampiExport] 203 0, [IDFilter] 3 0)
update SYS_PROCEDURE set [ScheduleTask]=0 where [ScheduleTask] is null
update SYS_PROCEDURE set [FileExport]=0 where [FileExport] is null
update SYS_PROCEDURE set [IDFilter]=0 where [IDFilter] is null
if exists(select * from sysindexes where name = 'CUR_SYS_PROCEDUREPrimaryKey') alter table SYS_PROCEDURE drop constraint CUR_SYS_PROCEDUREPrimaryKey
alter table SYS_PROCEDURE alter column [ID_Proc] int not null
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREScheduleTask] default 0 for [ScheduleTask]
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREFileExport] default 0 for [FileExport]
alter table SYS_PROCEDURE add constraint [DEFVAL_SYS_PROCEDUREIDFilter] default 0 for [IDFilter]
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE') and name='CUR_SYS_PROCEDUREPrimaryKey') alter table SYS_PROCEDURE add constraint CUR_SYS_PROCEDUREPrimaryKey primary key ([ID_Proc] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE ([ID_Proc] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE') and name='IDFilter') create index IDFilter on SYS_PROCEDURE ([IDFilter] asc)
catalog: append table SYS_PROCEDURE_DB ([ID_Proc] 3 0, [SYS_SERIALE] 202 16)
update SYS_PROCEDURE_DB set [ID_Proc]=0 where [ID_Proc] is null
if exists(select * from sysindexes where name = 'CUR_SYS_PROCEDURE_DBPrimaryKey') alter table SYS_PROCEDURE_DB drop constraint CUR_SYS_PROCEDURE_DBPrimaryKey
alter table SYS_PROCEDURE_DB alter column [ID_Proc] int not null
alter table SYS_PROCEDURE_DB alter column [SYS_SERIALE] nvarchar(16) not null
alter table SYS_PROCEDURE_DB add constraint [DEFVAL_SYS_PROCEDURE_DBID_Proc] default 0 for [ID_Proc]
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB') and name='CUR_SYS_PROCEDURE_DBPrimaryKey') alter table SYS_PROCEDURE_DB add constraint CUR_SYS_PROCEDURE_DBPrimaryKey primary key ([ID_Proc] asc, [SYS_SERIALE] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE_DB ([ID_Proc] asc)
catalog: append table SYS_PROCEDURE_DB_EXPORT ([ID_Proc] 3 0, [SYS_SERIALE] 202 16, [SYS_RECORD] 3 0, [Data] 135 0, [Ora] 135 0, [ID_Utente] 3 0, [Registrato] 11 0)
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
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey') alter table SYS_PROCEDURE_DB_EXPORT add constraint CUR_SYS_PROCEDURE_DB_EXPORTPrimaryKey primary key ([ID_Proc] asc, [SYS_SERIALE] asc, [SYS_RECORD] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='ID_Proc') create index ID_Proc on SYS_PROCEDURE_DB_EXPORT ([ID_Proc] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='ID_Utente') create index ID_Utente on SYS_PROCEDURE_DB_EXPORT ([ID_Utente] asc)
if not exists(select * from sysindexes where id = object_id('SYS_PROCEDURE_DB_EXPORT') and name='SYS_RECORD') create index SYS_RECORD on SYS_PROCEDURE_DB_EXPORT ([SYS_RECORD] asc)
catalog: append table SYS_REGISTRI ([COD_REG] 3 0, [DESCRIZIONE] 202 30)
update SYS_REGISTRI set [COD_REG]=0 where [COD_REG] is null
if exists(select * from sysindexes where name = 'CUR_SYS_REGISTRIPrimaryKey') alter table SYS_REGISTRI drop constraint CUR_SYS_REGISTRIPrimaryKey
alter table SYS_REGISTRI alter column [COD_REG] int not null
alter table SYS_REGISTRI add constraint [DEFVAL_SYS_REGISTRICOD_REG] default 0 for [COD_REG]
if not exists(select * from sysindexes where id = object_id('SYS_REGISTRI') and name='CUR_SYS_REGISTRIPrimaryKey') alter table SYS_REGISTRI add constraint CUR_SYS_REGISTRIPrimaryKey primary key ([COD_REG] asc)
if not exists(select * from sysindexes where id = object_id('SYS_REGISTRI') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_REGISTRI ([COD_REG] asc)
catalog: append table SYS_TATD ([ID_TIPOARC] 3 0, [ID_TIPODOC] 3 0)
update SYS_TATD set [ID_TIPOARC]=0 where [ID_TIPOARC] is null
update SYS_TATD set [ID_TIPODOC]=0 where [ID_TIPODOC] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TATDPrimaryKey') alter table SYS_TATD drop constraint CUR_SYS_TATDPrimaryKey
alter table SYS_TATD alter column [ID_TIPOARC] int not null
alter table SYS_TATD alter column [ID_TIPODOC] int not null
alter table SYS_TATD add constraint [DEFVAL_SYS_TATDID_TIPOARC] default 0 for [ID_TIPOARC]
alter table SYS_TATD add constraint [DEFVAL_SYS_TATDID_TIPODOC] default 0 for [ID_TIPODOC]
if not exists(select * from sysindexes where id = object_id('SYS_TATD') and name='CUR_SYS_TATDPrimaryKey') alter table SYS_TATD add constraint CUR_SYS_TATDPrimaryKey primary key ([ID_TIPOARC] asc, [ID_TIPODOC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TATD') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_TATD ([ID_TIPOARC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TATD') and name='ID_TIPODOC') create index ID_TIPODOC on SYS_TATD ([ID_TIPODOC] asc)
catalog: append table SYS_TIPO_ARC ([ID_TIPOARC] 3 0, [DESCRIZIONE] 202 50)
update SYS_TIPO_ARC set [ID_TIPOARC]=0 where [ID_TIPOARC] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_ARCPrimaryKey') alter table SYS_TIPO_ARC drop constraint CUR_SYS_TIPO_ARCPrimaryKey
alter table SYS_TIPO_ARC alter column [ID_TIPOARC] int not null
alter table SYS_TIPO_ARC add constraint [DEFVAL_SYS_TIPO_ARCID_TIPOARC] default 0 for [ID_TIPOARC]
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_ARC') and name='CUR_SYS_TIPO_ARCPrimaryKey') alter table SYS_TIPO_ARC add constraint CUR_SYS_TIPO_ARCPrimaryKey primary key ([ID_TIPOARC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_ARC') and name='ID_TIPOARC') create index ID_TIPOARC on SYS_TIPO_ARC ([ID_TIPOARC] asc)
catalog: append table SYS_TIPO_DOC_F ([ID_TIPODOC] 3 0, [DESCRIZIONE] 202 255, [RAGGRUPPAMENTO] 202 15, [ID_TDOC_TRIB] 3 0, [Cod_tipo_CCT] 202 15, [BARCODE_LBL] 11 0)
update SYS_TIPO_DOC_F set [ID_TIPODOC]=0 where [ID_TIPODOC] is null
update SYS_TIPO_DOC_F set [BARCODE_LBL]=0 where [BARCODE_LBL] is null
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_DOC_FPrimaryKey') alter table SYS_TIPO_DOC_F drop constraint CUR_SYS_TIPO_DOC_FPrimaryKey
alter table SYS_TIPO_DOC_F alter column [ID_TIPODOC] int not null
alter table SYS_TIPO_DOC_F add constraint [DEFVAL_SYS_TIPO_DOC_FID_TIPODOC] default 0 for [ID_TIPODOC]
alter table SYS_TIPO_DOC_F add constraint [DEFVAL_SYS_TIPO_DOC_FBARCODE_LBL] default 0 for [BARCODE_LBL]
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_DOC_F') and name='CUR_SYS_TIPO_DOC_FPrimaryKey') alter table SYS_TIPO_DOC_F add constraint CUR_SYS_TIPO_DOC_FPrimaryKey primary key ([ID_TIPODOC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_DOC_F') and name='ID_TIPODOC') create index ID_TIPODOC on SYS_TIPO_DOC_F ([ID_TIPODOC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_DOC_F') and name='SYS_TIPO_DOC_FCod_tipo_CCT') create index SYS_TIPO_DOC_FCod_tipo_CCT on SYS_TIPO_DOC_F ([Cod_tipo_CCT] asc)
catalog: append table SYS_TIPO_DOC_TRIB ([ID_TDOC_TRIB] 3 0, [DESCRIZIONE] 202 255)
if exists(select * from sysindexes where name = 'CUR_SYS_TIPO_DOC_TRIBPrimaryKey') alter table SYS_TIPO_DOC_TRIB drop constraint CUR_SYS_TIPO_DOC_TRIBPrimaryKey
alter table SYS_TIPO_DOC_TRIB alter column [ID_TDOC_TRIB] int not null
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_DOC_TRIB') and name='CUR_SYS_TIPO_DOC_TRIBPrimaryKey') alter table SYS_TIPO_DOC_TRIB add constraint CUR_SYS_TIPO_DOC_TRIBPrimaryKey primary key ([ID_TDOC_TRIB] asc)
if not exists(select * from sysindexes where id = object_id('SYS_TIPO_DOC_TRIB') and name='ID_TDOC_TRIB') create index ID_TDOC_TRIB on SYS_TIPO_DOC_TRIB ([ID_TDOC_TRIB] asc)
catalog: append table SYS_XML_CAMPI ([ID_REC] 3 0, [XML_CAMPOSCHEMA] 202 50, [XML_CAMPODB] 202 255, [RAGGRUPPAMENTO] 202 20)
update SYS_XML_CAMPI set [XML_CAMPOSCHEMA]='' where [XML_CAMPOSCHEMA] is null
if exists(select * from sysindexes where name = 'CUR_SYS_XML_CAMPIPrimaryKey') alter table SYS_XML_CAMPI drop constraint CUR_SYS_XML_CAMPIPrimaryKey
alter table SYS_XML_CAMPI alter column [XML_CAMPOSCHEMA] nvarchar(50) not null
alter table SYS_XML_CAMPI alter column [XML_CAMPOSCHEMA] nvarchar(50) not null
alter table SYS_XML_CAMPI alter column [XML_CAMPODB] nvarchar(255) not null
alter table SYS_XML_CAMPI alter column [ID_REC] int not null
alter table SYS_XML_CAMPI add constraint [DEFVAL_SYS_XML_CAMPIXML_CAMPOSCHEMA] default '' for [XML_CAMPOSCHEMA]
if not exists(select * from sysindexes where id = object_id('SYS_XML_CAMPI') and name='CUR_SYS_XML_CAMPIPrimaryKey') alter table SYS_XML_CAMPI add constraint CUR_SYS_XML_CAMPIPrimaryKey primary key ([ID_REC] asc)
if not exists(select * from sysindexes where id = object_id('SYS_XML_CAMPI') and name='IDX_ASSOC') create unique index IDX_ASSOC on SYS_XML_CAMPI ([XML_CAMPOSCHEMA] asc, [XML_CAMPODB] asc)
catalog: append table TipoElab ([IDTipoFCom] 3 0, [Definizione] 202 50)
if exists(select * from sysindexes where name = 'CUR_TipoElabPrimaryKey') alter table TipoElab drop constraint CUR_TipoElabPrimaryKey
alter table TipoElab alter column [IDTipoFCom] int not null
if not exists(select * from sysindexes where id = object_id('TipoElab') and name='CUR_TipoElabPrimaryKey') alter table TipoElab add constraint CUR_TipoElabPrimaryKey primary key ([IDTipoFCom] asc)
if not exists(select * from sysindexes where id = object_id('TipoElab') and name='IDTipoFCom') create index IDTipoFCom on TipoElab ([IDTipoFCom] asc)
catalog: append table UTENTE_GRUPPI ([ID_UTENTE] 3 0, [ID_GRUPPO] 3 0)
if exists(select * from sysindexes where name = 'CUR_UTENTE_GRUPPIUTENTE_GRUPPO') alter table UTENTE_GRUPPI drop constraint CUR_UTENTE_GRUPPIUTENTE_GRUPPO
alter table UTENTE_GRUPPI alter column [ID_UTENTE] int not null
alter table UTENTE_GRUPPI alter column [ID_GRUPPO] int not null
if not exists(select * from sysindexes where id = object_id('UTENTE_GRUPPI') and name='CUR_UTENTE_GRUPPIUTENTE_GRUPPO') alter table UTENTE_GRUPPI add constraint CUR_UTENTE_GRUPPIUTENTE_GRUPPO primary key ([ID_UTENTE] asc, [ID_GRUPPO] asc)
catalog: append table UTENTE_INTERMEDIARI ([ID_UTENTE] 3 0, [ID_ANAG] 3 0)
update UTENTE_INTERMEDIARI set [ID_UTENTE]=0 where [ID_UTENTE] is null
update UTENTE_INTERMEDIARI set [ID_ANAG]=0 where [ID_ANAG] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_INTERMEDIARIUTENTE_INT') alter table UTENTE_INTERMEDIARI drop constraint CUR_UTENTE_INTERMEDIARIUTENTE_INT
alter table UTENTE_INTERMEDIARI alter column [ID_UTENTE] int not null
alter table UTENTE_INTERMEDIARI alter column [ID_ANAG] int not null
alter table UTENTE_INTERMEDIARI add constraint [DEFVAL_UTENTE_INTERMEDIARIID_UTENTE] default 0 for [ID_UTENTE]
alter table UTENTE_INTERMEDIARI add constraint [DEFVAL_UTENTE_INTERMEDIARIID_ANAG] default 0 for [ID_ANAG]
if not exists(select * from sysindexes where id = object_id('UTENTE_INTERMEDIARI') and name='CUR_UTENTE_INTERMEDIARIUTENTE_INT') alter table UTENTE_INTERMEDIARI add constraint CUR_UTENTE_INTERMEDIARIUTENTE_INT primary key ([ID_UTENTE] asc, [ID_ANAG] asc)
if not exists(select * from sysindexes where id = object_id('UTENTE_INTERMEDIARI') and name='ID_ANAG') create index ID_ANAG on UTENTE_INTERMEDIARI ([ID_ANAG] asc)
if not exists(select * from sysindexes where id = object_id('UTENTE_INTERMEDIARI') and name='ID_UTENTE') create index ID_UTENTE on UTENTE_INTERMEDIARI ([ID_UTENTE] asc)
catalog: append table UTENTE_PERMESSI ([ID_UTENTE] 3 0, [ID_PERMESSO] 3 0)
if exists(select * from sysindexes where name = 'CUR_UTENTE_PERMESSIUTENTE_PERMESSO') alter table UTENTE_PERMESSI drop constraint CUR_UTENTE_PERMESSIUTENTE_PERMESSO
alter table UTENTE_PERMESSI alter column [ID_UTENTE] int not null
alter table UTENTE_PERMESSI alter column [ID_PERMESSO] int not null
if not exists(select * from sysindexes where id = object_id('UTENTE_PERMESSI') and name='CUR_UTENTE_PERMESSIUTENTE_PERMESSO') alter table UTENTE_PERMESSI add constraint CUR_UTENTE_PERMESSIUTENTE_PERMESSO primary key ([ID_UTENTE] asc, [ID_PERMESSO] asc)
catalog: append table UTENTE_PROFILO ([ID_UTENTE] 3 0, [SYS_SERIALE] 202 16, [PROFILO] 203 0)
update UTENTE_PROFILO set [ID_UTENTE]=0 where [ID_UTENTE] is null
update UTENTE_PROFILO set [SYS_SERIALE]='' where [SYS_SERIALE] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_PROFILOUTENTE_PROFILO') alter table UTENTE_PROFILO drop constraint CUR_UTENTE_PROFILOUTENTE_PROFILO
alter table UTENTE_PROFILO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_PROFILO alter column [ID_UTENTE] int not null
alter table UTENTE_PROFILO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_PROFILO add constraint [DEFVAL_UTENTE_PROFILOID_UTENTE] default 0 for [ID_UTENTE]
alter table UTENTE_PROFILO add constraint [DEFVAL_UTENTE_PROFILOSYS_SERIALE] default '' for [SYS_SERIALE]
if not exists(select * from sysindexes where id = object_id('UTENTE_PROFILO') and name='CUR_UTENTE_PROFILOUTENTE_PROFILO') alter table UTENTE_PROFILO add constraint CUR_UTENTE_PROFILOUTENTE_PROFILO primary key ([ID_UTENTE] asc, [SYS_SERIALE] asc)
catalog: append table UTENTE_STORICO ([ID_UTENTE] 3 0, [SYS_SERIALE] 202 16, [REVISORE] 11 0, [CERTIFICATORE] 11 0, [CONTROLLORE] 11 0)
update UTENTE_STORICO set [REVISORE]=0 where [REVISORE] is null
update UTENTE_STORICO set [CERTIFICATORE]=0 where [CERTIFICATORE] is null
update UTENTE_STORICO set [CONTROLLORE]=0 where [CONTROLLORE] is null
if exists(select * from sysindexes where name = 'CUR_UTENTE_STORICOUTENTE_STORICO') alter table UTENTE_STORICO drop constraint CUR_UTENTE_STORICOUTENTE_STORICO
alter table UTENTE_STORICO alter column [ID_UTENTE] int not null
alter table UTENTE_STORICO alter column [SYS_SERIALE] nvarchar(16) not null
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOREVISORE] default 0 for [REVISORE]
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOCERTIFICATORE] default 0 for [CERTIFICATORE]
alter table UTENTE_STORICO add constraint [DEFVAL_UTENTE_STORICOCONTROLLORE] default 0 for [CONTROLLORE]
if not exists(select * from sysindexes where id = object_id('UTENTE_STORICO') and name='CUR_UTENTE_STORICOUTENTE_STORICO') alter table UTENTE_STORICO add constraint CUR_UTENTE_STORICOUTENTE_STORICO primary key ([ID_UTENTE] asc, [SYS_SERIALE] asc)
catalog: append table UTENTI ([ID_UTENTE] 3 0, [UTENTE] 202 25, [UTENTE_COMPLETO] 202 40, [PASSWORD] 202 25, [ADMIN] 11 0, [SICUREZZA] 3 0, [AIPA_COGNOME] 202 50, [AIPA_NOME] 202 50, [AIPA_COD_FISCALE] 202 16, [AIPA_DATA_NASCITA] 135 0, [AIPA_LOCALITA_NASCITA] 202 100, [AIPA_PROV_NASCITA] 202 2, [AIPA_STATO_NASCITA] 202 50, [AIPA_LOCALITA_RESIDENZA] 202 100, [AIPA_INDIRIZZO_RESIDENZA] 202 100, [AIPA_PROV_RESIDENZA] 202 2, [AIPA_CAP_RESIDENZA] 202 5, [AIPA_RESPONSABILE] 11 0, [AIPA_INCARICO_AZIENDALE] 202 100, [AIPA_INIZIO_INCARICO] 135 0, [AIPA_FINE_INCARICO] 135 0, [AIPA_FIRMA_Q_ABILE] 11 0, [AIPA_FIRMA_S_ABILE] 11 0, [AIPA_ORGANIZZAZIONE] 202 100, [AIPA_CERT_STORE] 203 0, [AIPA_CERT_Q_DEFAULT] 203 0, [AIPA_CERT_S_DEFAULT] 203 0, [AIPA_SYS_INFO_OK] 11 0, [EMAIL] 202 255, [SECRET_KEY] 3 0, [USID] 202 100, [SYS_WEB] 11 0, [SYS_LASTVIEWUPD] 135 0)
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
if not exists(select * from sysindexes where id = object_id('UTENTI') and name='CUR_UTENTIID_UTENTE') alter table UTENTI add constraint CUR_UTENTIID_UTENTE primary key ([ID_UTENTE] asc)
if not exists(select * from sysindexes where id = object_id('UTENTI') and name='UTENTE') create unique index UTENTE on UTENTI ([UTENTE] asc)
catalog: append table Valori ([IDValori] 3 0, [IDDefSucc] 3 0, [LEFT] 3 0, [TOP] 3 0, [RIGHT] 3 0, [BOTTOM] 3 0, [Valore] 202 50, [Azione] 202 50, [Campo_da_Compilare] 202 50, [Tipo_Dato] 11 0, [Base] 202 255, [Penna] 11 0, [ContatorePg] 11 0, [LarghezzaCar] 3 0, [AltezzaCar] 3 0)
update Valori set [Tipo_Dato]=0 where [Tipo_Dato] is null
update Valori set [Penna]=0 where [Penna] is null
update Valori set [ContatorePg]=0 where [ContatorePg] is null
if exists(select * from sysindexes where name = 'CUR_ValoriPrimaryKey') alter table Valori drop constraint CUR_ValoriPrimaryKey
alter table Valori alter column [IDValori] int not null
alter table Valori add constraint [DEFVAL_ValoriTipo_Dato] default 0 for [Tipo_Dato]
alter table Valori add constraint [DEFVAL_ValoriPenna] default 0 for [Penna]
alter table Valori add constraint [DEFVAL_ValoriContatorePg] default 0 for [ContatorePg]
if not exists(select * from sysindexes where id = object_id('Valori') and name='CUR_ValoriPrimaryKey') alter table Valori add constraint CUR_ValoriPrimaryKey primary key ([IDValori] asc)
if not exists(select * from sysindexes where id = object_id('Valori') and name='IDDefCom') create index IDDefCom on Valori ([IDDefSucc] asc)
if not exists(select * from sysindexes where id = object_id('Valori') and name='IDDefSuss') create index IDDefSuss on Valori ([IDValori] asc)
catalog: append table VOLUMI ([SYS_CAT_DISCO] 202 16, [SYS_CAT_PATH] 202 255, [SYS_CAT_DESCR] 202 100, [SYS_CAT_SIZE] 5 0, [SYS_CAT_FREE] 5 0, [FLAG_PATH_ERR] 11 0)
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
if not exists(select * from sysindexes where id = object_id('VOLUMI') and name='CUR_VOLUMISYS_CAT_DISCO') alter table VOLUMI add constraint CUR_VOLUMISYS_CAT_DISCO primary key ([SYS_CAT_DISCO] asc)
catalog: append table VOLUMI_PC ([COMPUTER] 202 255, [SYS_CAT_DISCO] 202 16, [SYS_CAT_PATH] 202 255)
update VOLUMI_PC set [COMPUTER]='' where [COMPUTER] is null
update VOLUMI_PC set [SYS_CAT_DISCO]='' where [SYS_CAT_DISCO] is null
if exists(select * from sysindexes where name = 'CUR_VOLUMI_PCTESSEMASTER') alter table VOLUMI_PC drop constraint CUR_VOLUMI_PCTESSEMASTER
alter table VOLUMI_PC alter column [COMPUTER] nvarchar(255) not null
alter table VOLUMI_PC alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI_PC alter column [COMPUTER] nvarchar(255) not null
alter table VOLUMI_PC alter column [SYS_CAT_DISCO] nvarchar(16) not null
alter table VOLUMI_PC add constraint [DEFVAL_VOLUMI_PCCOMPUTER] default '' for [COMPUTER]
alter table VOLUMI_PC add constraint [DEFVAL_VOLUMI_PCSYS_CAT_DISCO] default '' for [SYS_CAT_DISCO]
if not exists(select * from sysindexes where id = object_id('VOLUMI_PC') and name='CUR_VOLUMI_PCTESSEMASTER') alter table VOLUMI_PC add constraint CUR_VOLUMI_PCTESSEMASTER primary key ([COMPUTER] asc, [SYS_CAT_DISCO] asc)
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
