INSERT INTO t (a) EXEC p @x
