THROW 500+0, 'x', 1
