open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 27: -|-|ORDINE|-|-|RIGA
close
execute: alter table RIGA add constraint FK_RIGA foreign key (IDOrdine, Anno) references ORDINE (IDRec, AnnoOrd) on delete cascade on update cascade
execute: if exists (select name from sysobjects where name='TR_FK_RIGA') drop trigger TR_FK_RIGA
execute: create trigger TR_FK_RIGA on ORDINE for delete as delete from RIGA where RIGA.IDOrdine in (select IDRec from deleted) and RIGA.Anno in (select AnnoOrd from deleted)
execute: if exists (select name from sysobjects where name='TR_FK_RIGA_UPD') drop trigger TR_FK_RIGA_UPD
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
property: Multiple connections = False
execute: create trigger TR_FK_RIGA_UPD on ORDINE for update as if update(IDRec) update RIGA set RIGA.IDOrdine = i.IDRec, RIGA.Anno = i.AnnoOrd from inserted i inner join ORDINE as T on i.IDRec=T.IDRec
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 27: -|-|ORDINE|-|-|RIGA
close
execute: alter table RIGA add constraint FK_RIGA foreign key (IDOrdine, Anno) references ORDINE (IDRec, AnnoOrd) on delete cascade on update cascade
execute: if exists (select name from sysobjects where name='TR_FK_RIGA') drop trigger TR_FK_RIGA
execute: create trigger TR_FK_RIGA on ORDINE for delete as delete from RIGA where RIGA.IDOrdine in (select IDRec from deleted) and RIGA.Anno in (select AnnoOrd from deleted)
execute: if exists (select name from sysobjects where name='TR_FK_RIGA_UPD') drop trigger TR_FK_RIGA_UPD
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
property: Multiple connections = False
execute: create trigger TR_FK_RIGA_UPD on ORDINE for update as if update(IDRec) update RIGA set RIGA.IDOrdine = i.IDRec, RIGA.Anno = i.AnnoOrd from inserted i inner join ORDINE as T on i.IDRec=T.IDRec
close
