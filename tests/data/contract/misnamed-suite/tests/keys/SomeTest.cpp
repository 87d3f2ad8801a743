TEST(Some, NamedAfterTheFile) {}
TEST_F(SomeTest, NamedAfterTheFile) {}
TEST(OneOfMany, NamedAfterASource) {}
TEST_P(Somehow, NamedAfterNothing) {}
