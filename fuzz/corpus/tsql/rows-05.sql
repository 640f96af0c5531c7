INSERT INTO t (a) OUTPUT inserted.a INTO @o (b) SELECT a FROM u WHERE 1 = 1
