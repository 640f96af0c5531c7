SELECT T0.*, db..t.c, [a ]] b].[select], 0x1F, $5, 1e3, 'it''s'
