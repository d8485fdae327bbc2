open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
execute: SELECT COLUMNPROPERTY( OBJECT_ID('T'),'ID','IsIdentity')
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
execute: SELECT COLUMNPROPERTY( OBJECT_ID('T'),'NOME','IsIdentity')
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
execute: select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1  on t1.TABLE_NAME = c1.TABLE_NAME where c1.TABLE_SCHEMA = 'dbo' and t1.TABLE_TYPE = 'BASE TABLE' and columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'IsIdentity') = 1 and t1.TABLE_NAME like 'T'
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
execute: select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1 on t1.TABLE_NAME = c1.TABLE_NAME where c1.TABLE_SCHEMA = 'dbo' and t1.TABLE_TYPE = 'BASE TABLE' and columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'AllowsNull') = 1 and t1.TABLE_NAME like 'T'
close
open: Provider=SQLOLEDB;Initial Catalog=QZ;Data Source=SRV01;User ID=sa;Password=pw;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
execute: select t1.TABLE_NAME, c1.COLUMN_NAME from INFORMATION_SCHEMA.TABLES t1 inner join INFORMATION_SCHEMA.COLUMNS c1 on t1.TABLE_NAME = c1.TABLE_NAME where c1.TABLE_SCHEMA = 'dbo' and t1.TABLE_TYPE = 'BASE TABLE' and columnproperty(object_id(c1.TABLE_NAME), c1.COLUMN_NAME, 'AllowsNull') = 0 and t1.TABLE_NAME like 'T'
close
