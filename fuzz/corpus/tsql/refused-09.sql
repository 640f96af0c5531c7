SELECT a = 1 = 2
