SELECT a WHERE a = 1 OR b <> 2 AND NOT c < 3
