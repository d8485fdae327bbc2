open: Provider=SQLOLEDB;Initial Catalog=Master;Data Source=SRV01;Trusted_Connection=yes
schema 1: 
execute: create database QZNUOVO
schema 1: 
close
open: Provider=SQLOLEDB;Initial Catalog=QZNUOVO;Data Source=SRV01;Trusted_Connection=yes;Persist Security Info=true;Command Properties='Command Time Out=0';Pooling=False;Connection Lifetime=1;Max Pool Size=10
