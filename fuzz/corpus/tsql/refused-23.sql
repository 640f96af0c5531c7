DECLARE x int
