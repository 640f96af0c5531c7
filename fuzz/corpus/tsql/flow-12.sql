sp_rename 'a', 'b'; EXEC ('SELECT ' + @x); USE [master]
