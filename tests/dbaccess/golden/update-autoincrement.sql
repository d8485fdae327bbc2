select top 1 * from DB_ELENCO
select max ([IDRec]) from DB_ELENCO
update SYS_IDS set RECNUM=77 where TABELLA='DB_ELENCO'
select top 1 * from DB_ELENCO
update SYS_IDS set RECNUM=500 where TABELLA='DB_ELENCO'
