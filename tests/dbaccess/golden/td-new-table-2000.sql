catalog: append table ORDINE ([NOTE] 203 0, [QTA] 3 0)
execute: update ORDINE set [QTA]=5 where [QTA] is null
execute: alter table ORDINE add constraint [DEFVAL_ORDINEQTA] default 5 for [QTA]
