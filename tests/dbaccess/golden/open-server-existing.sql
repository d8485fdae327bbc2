open: Provider=SQLOLEDB;Initial Catalog=Master;Data Source=SRV01\SQL2005;User ID=sa;Password=segreto
schema 1: 
schema 1: 
close
open: Provider=SQLOLEDB;Initial Catalog=QzSystem;Data Source=SRV01\SQL2005;User ID=sa;Password=segreto;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
