UPDATE TOP (1) t SET @n = a = a + 1, b += 2, @m = 3, t.c = DEFAULT OUTPUT deleted.a
