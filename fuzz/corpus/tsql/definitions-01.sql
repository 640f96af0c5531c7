CREATE TABLE [dbo].[t] ([RecID] bigint IDENTITY(1,1) NOT NULL, [a] nvarchar (10) NULL DEFAULT (''), b varbinary(max), c float NOT NULL CONSTRAINT [df] DEFAULT ((0)) )
