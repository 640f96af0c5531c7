ALTER TABLE [dbo].[t]  DROP COLUMN [c], d
