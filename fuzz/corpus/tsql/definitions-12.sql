DROP INDEX [ ix] ON [dbo].[t] 
