SELECT x.a FROM (SELECT 1 AS a) x, (VALUES (1, 'p'), (2, 'q')) AS y (n, s)
