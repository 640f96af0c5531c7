CREATE PROC p @a int = -0 AS RETURN @a
