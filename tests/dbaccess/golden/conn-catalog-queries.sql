select object_name(default_object_id) from sys.columns where object_id = object_id('T') and name = 'A'
select object_name(default_object_id) from sys.columns where object_id = object_id('T') and name = 'B'
select object_name(default_object_id) from sys.columns where object_id = object_id('T') and name = 'C'
select name from sysobjects where id=(select parent_obj from sysobjects where name = 'DEFVAL_T_A')
select object_name(id) as TBLNAMES from sysindexes where name = 'CUR_T'
select object_name(id) as TBLNAMES from sysindexes where name = 'CUR_T'
select object_name(id) as TBLNAMES from sysindexes where name = 'CUR_T'
