EXECUTE @r = db.dbo.p 1, -2, @b = N'x', @c = @d OUTPUT, @e = DEFAULT, @f = word
