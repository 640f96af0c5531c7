SELECT COUNT(*), COUNT(DISTINCT a), LEFT(a, 2), RIGHT(a, 2), COALESCE(a, b), NULLIF(a, ''), dbo.f(1), IIF(a = 1, 2, 3)
