SELECT @x = a, n = b, 'm' = c, d 'e' INTO #t FROM db.dbo.u
