open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 20: -|-|db_elenco|-
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 20: -|-|DB_ALTRO|-
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 16: -|-|GetIdentity|-
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
schema 5: -|-|DEFVAL_T_A
close
