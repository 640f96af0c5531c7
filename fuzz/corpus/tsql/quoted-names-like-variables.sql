CREATE INDEX [@x] ON [dbo].[t] ([@a], b)
