CREATE TABLE t (a int,, b int)
