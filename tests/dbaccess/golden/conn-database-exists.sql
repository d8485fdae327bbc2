open: Provider=SQLOLEDB;Initial Catalog=Master;Data Source=SRV01;User ID=sa;Password=pw
schema 1: 
close
open: Provider=SQLOLEDB;Initial Catalog=Master;Data Source=SRV01;User ID=sa;Password=pw
schema 1: 
close
