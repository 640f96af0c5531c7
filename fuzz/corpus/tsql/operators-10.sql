SELECT a COLLATE Latin1_General_BIN + 'x', (SELECT MAX(b) FROM t)
