begin
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
property: Multiple connections = False
execute: create table T (A int)
close
commit
