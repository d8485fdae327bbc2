-- TdClose DOCUMENTO
catalog: append table DOCUMENTO (IDRec 3 0, SYS_RECORD 3 0, LIVELLO 2 0, NUMERO 3 0, IMPORTO 5 0, PREZZO 6 0, DATA 7 0, ORA 7 0, EMESSO 7 0, ATTIVO 11 0, CHIUSO 11 0, CHIAVE 72 0, NOME 202 50, SIGLA 202 10, DESCR 202 100, TESTO 203 0, MEMO 203 0)
-- TdClose RIGA
catalog: append table RIGA (IDRec 3 0, IDDocumento 3 0, IDOrigine 3 0, IDCopia 3 0, QTA 5 0)
-- TdClose ALLEGATO
catalog: append table ALLEGATO (IDRec 3 0, IDDocumento 3 0, FILE 202 255)
-- RelClose FK_RIGA_DOCUMENTO
catalog: append key RIGA.FK_RIGA_DOCUMENTO type 2 references DOCUMENTO (IDDocumento=IDRec) delete 1 update 1
-- RelClose FK_RIGA_ORIGINE
catalog: append key RIGA.FK_RIGA_ORIGINE type 2 references DOCUMENTO (IDOrigine=IDRec) delete 0 update 1
-- RelClose FK_RIGA_COPIA
-- RelClose FK_ALLEGATO_DOCUMENTO
catalog: append key ALLEGATO.FK_ALLEGATO_DOCUMENTO type 2 references DOCUMENTO (IDDocumento=IDRec) delete 1 update 0
table DOCUMENTO
  column IDRec 3 0: Autoincrement=True, Default=Empty, Nullable=True, Seed=1, Increment=1
  column SYS_RECORD 3 0: Autoincrement=False, Default=0, Nullable=True, Seed=1, Increment=1
  column LIVELLO 2 0: Autoincrement=False, Default=0, Nullable=True, Seed=1, Increment=1
  column NUMERO 3 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column IMPORTO 5 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column PREZZO 6 0: Autoincrement=False, Default=0.0000, Nullable=True, Seed=1, Increment=1
  column DATA 7 0: Autoincrement=False, Default='date()', Nullable=True, Seed=1, Increment=1
  column ORA 7 0: Autoincrement=False, Default='time()', Nullable=True, Seed=1, Increment=1
  column EMESSO 7 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column ATTIVO 11 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column CHIUSO 11 0: Autoincrement=False, Default=0, Nullable=True, Seed=1, Increment=1
  column CHIAVE 72 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column NOME 202 50: Autoincrement=False, Default='""', Nullable=True, Seed=1, Increment=1
  column SIGLA 202 10: Autoincrement=False, Default='"abc"', Nullable=True, Seed=1, Increment=1, Jet OLEDB:Allow Zero Length=True
  column DESCR 202 100: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1, Jet OLEDB:Allow Zero Length=True
  column TESTO 203 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1, Jet OLEDB:Allow Zero Length=True
  column MEMO 203 0: Autoincrement=False, Default='""', Nullable=True, Seed=1, Increment=1, Jet OLEDB:Allow Zero Length=True
  index PrimaryKey primary unique nulls allowed (IDRec asc)
  index UX_SIGLA unique nulls allowed (SIGLA asc)
  index IX_DATA nulls allowed (DATA desc, NOME asc)
table RIGA
  column IDRec 3 0: Autoincrement=True, Default=Empty, Nullable=True, Seed=1, Increment=1
  column IDDocumento 3 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column IDOrigine 3 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column IDCopia 3 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column QTA 5 0: Autoincrement=False, Default=0, Nullable=True, Seed=1, Increment=1
  index PrimaryKey primary unique nulls allowed (IDRec asc)
  index IX_DOCUMENTO nulls allowed (IDDocumento asc)
table ALLEGATO
  column IDRec 3 0: Autoincrement=True, Default=Empty, Nullable=True, Seed=1, Increment=1
  column IDDocumento 3 0: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1
  column FILE 202 255: Autoincrement=False, Default=Empty, Nullable=True, Seed=1, Increment=1, Jet OLEDB:Allow Zero Length=True
  index PrimaryKey primary unique nulls allowed (IDRec asc)
