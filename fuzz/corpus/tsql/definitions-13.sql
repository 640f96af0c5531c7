DROP INDEX t.ix, dbo.t.iy
